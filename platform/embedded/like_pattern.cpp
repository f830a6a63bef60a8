#include "platform/embedded/like_pattern.h"

#include <algorithm>

#include "base/text/utf8.h"

namespace ovindra::embedded {
namespace {

constexpr std::string_view kWildcards = "%_[";

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The bytes of the first character.
std::size_t FirstLength(std::string_view text) {
  return FirstCharacters(text, 1).size();
}

/// A set at the start of a pattern: what follows its bracket, and how long it is with its brackets; zero when
/// the bracket never closes and so stands for nothing.
struct Set {
  std::string_view members;
  std::size_t length;
};

Set SetAt(std::string_view pattern) {
  const std::size_t end = pattern.find(']', 1);
  if (end == std::string_view::npos) return {{}, 0};
  return {pattern.substr(1, end - 1), end + 1};
}

/// Sets hold single characters of one byte and ranges of them.
bool IsMember(std::string_view members, char c) {
  const bool is_negated = members.starts_with('^');
  if (is_negated) members.remove_prefix(1);
  const auto lower = static_cast<unsigned char>(Lower(c));
  bool is_member = false;
  for (std::size_t i = 0; i < members.size(); ++i) {
    const auto first = static_cast<unsigned char>(Lower(members[i]));
    auto last = first;
    if (i + 2 < members.size() && members[i + 1] == '-') {
      last = static_cast<unsigned char>(Lower(members[i + 2]));
      i += 2;
    }
    is_member = is_member || (lower >= first && lower <= last);
  }
  return is_member != is_negated;
}

/// The bytes of the pattern and of the text that match at their starts; nothing matched gives zero for the
/// pattern.
struct Step {
  std::size_t pattern;
  std::size_t text;
};

Step MatchOne(std::string_view pattern, std::string_view text) {
  if (pattern.empty() || text.empty()) return {0, 0};
  if (pattern.front() == '_') return {1, FirstLength(text)};
  if (pattern.front() == '[') {
    const Set set = SetAt(pattern);
    return set.length > 0 && IsMember(set.members, text.front()) ? Step{set.length, FirstLength(text)}
                                                                 : Step{0, 0};
  }
  return Lower(pattern.front()) == Lower(text.front()) ? Step{1, 1} : Step{0, 0};
}

}  // namespace

PatternShape ShapeOf(std::string_view pattern) {
  const std::size_t wildcard = pattern.find_first_of(kWildcards);
  if (wildcard == std::string_view::npos) return PatternShape::kPlain;
  if (wildcard == 0) return PatternShape::kAny;
  const bool is_last = wildcard + 1 == pattern.size() && pattern[wildcard] == '%';
  return is_last ? PatternShape::kPrefix : PatternShape::kPrefixed;
}

bool MatchesPattern(std::string_view text, std::string_view pattern) {
  // Only the last % is ever gone back to: what an earlier one could still take, the last one can too.
  std::size_t at = 0;
  std::size_t in = 0;
  std::size_t after_percent = std::string_view::npos;
  std::size_t text_at_percent = 0;
  while (at < text.size() || in < pattern.size()) {
    if (in < pattern.size() && pattern[in] == '%') {
      after_percent = ++in;
      text_at_percent = at;
      continue;
    }
    const Step step = MatchOne(pattern.substr(in), text.substr(at));
    if (step.pattern > 0) {
      in += step.pattern;
      at += step.text;
      continue;
    }
    if (after_percent == std::string_view::npos || text_at_percent >= text.size()) return false;
    text_at_percent += FirstLength(text.substr(text_at_percent));
    at = text_at_percent;
    in = after_percent;
  }
  return true;
}

std::string_view PrefixOf(std::string_view pattern) {
  return pattern.substr(0, pattern.find_first_of(kWildcards));
}

std::string PastPrefix(std::string_view pattern) {
  // No text holds this byte, and it is greater than any that a text holds.
  constexpr char kGreatest = '\xFF';
  return std::string(PrefixOf(pattern)) + kGreatest;
}

}  // namespace ovindra::embedded
