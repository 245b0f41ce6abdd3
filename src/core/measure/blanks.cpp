#include "core/measure/blanks.h"

namespace brenko {

std::string_view TrimBlanks(std::string_view text, std::string_view blanks) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  const std::size_t last = text.find_last_not_of(blanks);
  return text.substr(first, last - first + 1);
}

std::string_view TrimLeadingBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first);
}

std::string_view TrimTrailingBlanks(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view()
                                        : text.substr(0, last + 1);
}

}  // namespace brenko
