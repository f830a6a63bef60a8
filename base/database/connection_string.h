// The parts of a connection string, "DSN=ZQR;user ID=sa;pwd=...;". The views look into the string.
#pragma once

#include <string_view>
#include <vector>

namespace ovindra {

struct ConnectionPart {
  std::string_view key;
  std::string_view value;
};

/// The parts in their order, without the blanks around keys and values. A part without a key is left out.
std::vector<ConnectionPart> ConnectionParts(std::string_view connection_string);

/// The data source that the string names by its part DSN; empty when it has none.
std::string_view SourceName(std::string_view connection_string);

}  // namespace ovindra
