// The patterns of like: % for any characters, _ for one, [a-f] for one of a set, [^a-f] for one of none;
// letters match without regard to case. The shape of a pattern tells how far an index can serve it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovindra::embedded {

/// What a pattern begins with: a wildcard; plain characters and later a wildcard; plain characters with a %
/// behind as the only wildcard; or plain characters alone.
enum class PatternShape : std::uint8_t { kAny, kPrefixed, kPrefix, kPlain };

PatternShape ShapeOf(std::string_view pattern);

/// Whether the text matches the pattern.
bool MatchesPattern(std::string_view text, std::string_view pattern);

/// The characters before the first wildcard.
std::string_view PrefixOf(std::string_view pattern);

/// A text that is greater than every text that begins with the prefix of the pattern, and not greater than
/// any other.
std::string PastPrefix(std::string_view pattern);

}  // namespace ovindra::embedded
