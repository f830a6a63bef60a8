#include "platform/office/biff/password.h"

#include <cstddef>

namespace ovindra::office {

std::uint16_t PasswordVerifier(std::string_view password) {
  constexpr unsigned kLastStep = 0xCE4B;
  unsigned verifier = 0;
  const auto take = [&](unsigned byte) {
    verifier = (((verifier >> 14U) & 1U) | ((verifier << 1U) & 0x7FFFU)) ^ byte;
  };
  for (std::size_t i = password.size(); i-- > 0;) take(static_cast<unsigned char>(password[i]));
  take(static_cast<unsigned>(password.size()));
  return static_cast<std::uint16_t>(verifier ^ kLastStep);
}

}  // namespace ovindra::office
