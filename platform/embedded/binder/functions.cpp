#include "platform/embedded/binder/functions.h"

#include <algorithm>

#include "base/text/utf8.h"

namespace ovindra::embedded {
namespace {

constexpr auto kNone = ArgumentKind::kNone;
constexpr auto kAny = ArgumentKind::kAny;
constexpr auto kTextArgument = ArgumentKind::kText;
constexpr auto kWhole = ArgumentKind::kInteger;
constexpr auto kNumber = ArgumentKind::kNumber;
constexpr auto kMomentArgument = ArgumentKind::kMoment;
constexpr auto kPart = ArgumentKind::kPart;
constexpr auto kSame = ArgumentKind::kLikeFirst;

/// How many arguments a function with $* takes.
constexpr std::size_t kManyArguments = 2;

constexpr Function kFunctions[] = {
    {"len", 1, {kTextArgument}, ResultKind::kInteger, "length(rtrim($1,' '))"},
    {"upper", 1, {kTextArgument}, ResultKind::kText, "upper($1)"},
    {"lower", 1, {kTextArgument}, ResultKind::kText, "lower($1)"},
    {"ltrim", 1, {kTextArgument}, ResultKind::kText, "ltrim($1,' ')"},
    {"rtrim", 1, {kTextArgument}, ResultKind::kText, "rtrim($1,' ')"},
    {"left", 2, {kTextArgument, kWhole}, ResultKind::kText, "part_of_text($1,1,$2)"},
    {"right", 2, {kTextArgument, kWhole}, ResultKind::kText, "end_of_text($1,$2)"},
    {"substring", 3, {kTextArgument, kWhole, kWhole}, ResultKind::kText, "part_of_text($1,$2,$3)"},
    {"replace",
     3,
     {kTextArgument, kTextArgument, kTextArgument},
     ResultKind::kText,
     "replace_text($1,$2,$3)"},
    {"charindex", 2, {kTextArgument, kTextArgument}, ResultKind::kInteger, "instr(lower($2),lower($1))"},
    {"isnull", 2, {kAny, kSame}, ResultKind::kFirst, "coalesce($1,$2)"},
    {"coalesce", kManyArguments, {kAny, kAny, kAny, kAny}, ResultKind::kCommon, "coalesce($*)"},
    {"nullif", 2, {kAny, kSame}, ResultKind::kFirst, "nullif($1,$2)"},
    {"abs", 1, {kNumber}, ResultKind::kFirst, "abs($1)"},
    {"getdate", 0, {kNone}, ResultKind::kMoment, "moment_now()"},
    {"year", 1, {kMomentArgument}, ResultKind::kInteger, "moment_part('year',$1)"},
    {"month", 1, {kMomentArgument}, ResultKind::kInteger, "moment_part('month',$1)"},
    {"day", 1, {kMomentArgument}, ResultKind::kInteger, "moment_part('day',$1)"},
    {"datepart", 2, {kPart, kMomentArgument}, ResultKind::kInteger, "moment_part($1,$2)"},
    {"dateadd", 3, {kPart, kWhole, kMomentArgument}, ResultKind::kMoment, "moment_add($1,$2,$3)"},
    {"datediff",
     3,
     {kPart, kMomentArgument, kMomentArgument},
     ResultKind::kInteger,
     "moment_count($1,$2,$3)"},
};

}  // namespace

const Function* FunctionNamed(std::string_view name) {
  const auto* found = std::find_if(std::begin(kFunctions), std::end(kFunctions),
                                   [&](const Function& each) { return SameWithoutCase(each.name, name); });
  return found == std::end(kFunctions) ? nullptr : found;
}

}  // namespace ovindra::embedded
