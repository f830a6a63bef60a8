// The 16-bit verifier that an Excel 97 sheet keeps of its password.
#pragma once

#include <cstdint>
#include <string_view>

namespace ovindra::office {

/// [MS-OFFCRYPTO] 2.3.7.1, binary document password verifier derivation method 1. The password is Latin text
/// of at most 15 characters.
std::uint16_t PasswordVerifier(std::string_view password);

}  // namespace ovindra::office
