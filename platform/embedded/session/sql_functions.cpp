#include "platform/embedded/session/sql_functions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "base/text/utf8.h"
#include "platform/embedded/conversion.h"
#include "platform/embedded/like_pattern.h"
#include "platform/embedded/moment_text.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

/// The arguments of a call and the place for its result.
class FunctionArguments {
 public:
  FunctionArguments(sqlite3_context* context, sqlite3_value** values) : context_(context), values_(values) {}

  bool IsNull(int i) const { return sqlite3_value_type(values_[i]) == SQLITE_NULL; }
  bool IsWhole(int i) const { return sqlite3_value_type(values_[i]) == SQLITE_INTEGER; }
  std::int64_t Whole(int i) const { return sqlite3_value_int64(values_[i]); }
  double Real(int i) const { return sqlite3_value_double(values_[i]); }
  std::string_view Text(int i) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(values_[i]));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(values_[i]))};
  }
  /// A type that is given as kind, size and scale.
  SqlType Type(int i) const {
    return {static_cast<TypeKind>(Whole(i)), static_cast<int>(Whole(i + 1)), static_cast<int>(Whole(i + 2))};
  }
  Value Any(int i) const {
    switch (sqlite3_value_type(values_[i])) {
      case SQLITE_INTEGER:
        return Whole(i);
      case SQLITE_FLOAT:
        return Real(i);
      case SQLITE_NULL:
        return {};
      default:
        return std::string(Text(i));
    }
  }

  void Give(std::int64_t value) { sqlite3_result_int64(context_, value); }
  void Give(double value) { sqlite3_result_double(context_, value); }
  void Give(std::string_view value) {
    sqlite3_result_text64(context_, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }
  void Give(const Value& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return Give(*whole);
    if (const auto* real = std::get_if<double>(&value)) return Give(*real);
    if (const auto* text = std::get_if<std::string>(&value)) return Give(std::string_view(*text));
    sqlite3_result_null(context_);
  }
  void GiveSame(int i) { sqlite3_result_value(context_, values_[i]); }

 private:
  sqlite3_context* context_;
  sqlite3_value** values_;
};

void ConvertValue(FunctionArguments& call) {
  const SqlType from = call.Type(1);
  const SqlType to = call.Type(4);
  const auto purpose = static_cast<Purpose>(call.Whole(7));
  if (from.IsText()) return call.Give(ConvertText(call.Text(0), to, purpose));
  call.Give(Convert(call.Any(0), from, to, purpose, static_cast<int>(call.Whole(8))));
}

void FitTextValue(FunctionArguments& call) {
  call.Give(FitText(call.Text(0), static_cast<int>(call.Whole(1))));
}

/// A computed number as its type; a whole number that has left 64 bits comes as a real.
void GiveFitted(FunctionArguments& call, bool is_whole, std::int64_t whole, double real, SqlType type) {
  if (type.kind == TypeKind::kInteger) {
    if (!is_whole) throw ArithmeticOverflow(type);
    return call.Give(FitInteger(whole, type));
  }
  if (is_whole && type.kind == TypeKind::kNumeric && type.scale == 0) return call.Give(whole);
  call.Give(FitNumber(is_whole ? static_cast<double>(whole) : real, type));
}

void FitNumberValue(FunctionArguments& call) {
  GiveFitted(call, call.IsWhole(0), call.Whole(0), call.Real(0), call.Type(1));
}

void FitMomentValue(FunctionArguments& call) {
  if (!call.IsWhole(0)) throw ArithmeticOverflow(kMomentType);
  call.Give(FitMoment(call.Whole(0)));
}

void Divide(FunctionArguments& call) {
  const SqlType type = call.Type(2);
  if (call.Real(1) == 0) throw DivideByZero();
  if (type.kind != TypeKind::kInteger) return GiveFitted(call, false, 0, call.Real(0) / call.Real(1), type);
  // The lowest number of 64 bits has no positive counterpart.
  if (call.Whole(1) == -1) {
    if (call.Whole(0) == std::numeric_limits<std::int64_t>::min()) throw ArithmeticOverflow(type);
    return call.Give(FitInteger(-call.Whole(0), type));
  }
  call.Give(FitInteger(call.Whole(0) / call.Whole(1), type));
}

void Modulo(FunctionArguments& call) {
  const SqlType type = call.Type(2);
  if (call.Real(1) == 0) throw DivideByZero();
  if (!call.IsWhole(0) || !call.IsWhole(1))
    return call.Give(FitNumber(std::fmod(call.Real(0), call.Real(1)), type));
  call.Give(call.Whole(1) == -1 ? 0 : call.Whole(0) % call.Whole(1));
}

void LikeText(FunctionArguments& call) {
  call.Give(std::int64_t{MatchesPattern(call.Text(0), call.Text(1))});
}
void LikeFrom(FunctionArguments& call) {
  call.Give(PrefixOf(call.Text(0)));
}
void LikeTo(FunctionArguments& call) {
  call.Give(std::string_view(PastPrefix(call.Text(0))));
}

/// The characters from a position on, counted from 1; a position before the text takes from the length.
void PartOfText(FunctionArguments& call) {
  const std::string_view text = call.Text(0);
  std::int64_t first = call.Whole(1);
  std::int64_t length = call.Whole(2);
  if (length < 0) throw InvalidLength();
  if (first < 1) {
    length = std::max<std::int64_t>(length + first - 1, 0);
    first = 1;
  }
  const std::string_view before = FirstCharacters(text, static_cast<std::size_t>(first - 1));
  call.Give(FirstCharacters(text.substr(before.size()), static_cast<std::size_t>(length)));
}

void EndOfText(FunctionArguments& call) {
  const std::string_view text = call.Text(0);
  if (call.Whole(1) < 0) throw InvalidLength();
  const std::size_t count = CharacterCount(text);
  const auto kept = std::min(static_cast<std::size_t>(call.Whole(1)), count);
  call.Give(text.substr(FirstCharacters(text, count - kept).size()));
}

/// Replaces without regard to case.
void ReplaceText(FunctionArguments& call) {
  const std::string_view text = call.Text(0);
  const std::string searched = LowerCaseLatin(call.Text(1));
  if (searched.empty()) return call.Give(text);
  const std::string lower = LowerCaseLatin(text);
  std::string result;
  std::size_t at = 0;
  for (std::size_t found = lower.find(searched); found != std::string::npos;
       found = lower.find(searched, at)) {
    result += text.substr(at, found - at);
    result += call.Text(2);
    at = found + searched.size();
  }
  constexpr std::size_t kLongestResult = 1'000'000;
  result += text.substr(at);
  if (result.size() > kLongestResult) throw TextTooLong();
  call.Give(std::string_view(result));
}

void Now(FunctionArguments& call) {
  call.Give(MomentNow());
}
void PartOfMoment(FunctionArguments& call) {
  call.Give(MomentPart(call.Text(0), call.Whole(1)));
}
void AddToMoment(FunctionArguments& call) {
  call.Give(AddMomentParts(call.Text(0), call.Whole(1), call.Whole(2)));
}
void CountOfMoments(FunctionArguments& call) {
  call.Give(FitInteger(CountMomentParts(call.Text(0), call.Whole(1), call.Whole(2)), kIntType));
}

struct SqlFunction {
  const char* name;
  void (*run)(FunctionArguments&);
  int arguments;
  bool is_deterministic = true;
};

constexpr SqlFunction kSqlFunctions[] = {
    {"convert_value", ConvertValue, 9},
    {"fit_text", FitTextValue, 2},
    {"fit_number", FitNumberValue, 4},
    {"fit_moment", FitMomentValue, 1},
    {"divide", Divide, 5},
    {"modulo", Modulo, 5},
    {"like_text", LikeText, 2},
    {"like_from", LikeFrom, 1},
    {"like_to", LikeTo, 1},
    {"part_of_text", PartOfText, 3},
    {"end_of_text", EndOfText, 2},
    {"replace_text", ReplaceText, 3},
    {"moment_now", Now, 0, false},
    {"moment_part", PartOfMoment, 2},
    {"moment_add", AddToMoment, 3},
    {"moment_count", CountOfMoments, 3},
};

/// What a function is registered with: which it is, and where its refusal goes.
struct Registration {
  const SqlFunction* function;
  PendingRefusal* refusal;
};

void Refuse(sqlite3_context* context, PendingRefusal& refusal, const RuntimeError& error) {
  refusal = error;
  sqlite3_result_error(context, error.what(), -1);
}

/// A NULL among the arguments makes the result NULL.
void Call(sqlite3_context* context, int count, sqlite3_value** values) {
  const auto* registration = static_cast<const Registration*>(sqlite3_user_data(context));
  FunctionArguments call(context, values);
  for (int i = 0; i < count; ++i) {
    if (call.IsNull(i)) return;
  }
  try {
    registration->function->run(call);
  } catch (const RuntimeError& error) {
    Refuse(context, *registration->refusal, error);
  }
}

/// The only row of a query that stands as a value.
void StepOnlyRow(sqlite3_context* context, int, sqlite3_value** values) {
  auto** kept = static_cast<sqlite3_value**>(sqlite3_aggregate_context(context, sizeof(sqlite3_value*)));
  if (kept == nullptr) return sqlite3_result_error_nomem(context);
  if (*kept != nullptr) {
    auto* refusal = static_cast<PendingRefusal*>(sqlite3_user_data(context));
    return Refuse(context, *refusal, SubqueryManyRows());
  }
  *kept = sqlite3_value_dup(values[0]);
}

void FinishOnlyRow(sqlite3_context* context) {
  auto** kept = static_cast<sqlite3_value**>(sqlite3_aggregate_context(context, 0));
  if (kept == nullptr || *kept == nullptr) return sqlite3_result_null(context);
  sqlite3_result_value(context, *kept);
  sqlite3_value_free(*kept);
}

}  // namespace

void RegisterFunctions(sqlite3* database, PendingRefusal& refusal) {
  for (const SqlFunction& function : kSqlFunctions) {
    const int flags = SQLITE_UTF8 | SQLITE_INNOCUOUS | (function.is_deterministic ? SQLITE_DETERMINISTIC : 0);
    sqlite3_create_function_v2(database, function.name, function.arguments, flags,
                               new Registration{&function, &refusal}, Call, nullptr, nullptr,
                               [](void* registration) { delete static_cast<Registration*>(registration); });
  }
  sqlite3_create_function_v2(database, "only_row", 1, SQLITE_UTF8 | SQLITE_INNOCUOUS, &refusal, nullptr,
                             StepOnlyRow, FinishOnlyRow, nullptr);
}

}  // namespace ovindra::embedded
