#pragma once
// File names travel through the program as std::filesystem::path and are
// shown as UTF-8 text. A path is made from text and turned back into text
// only here, so a name like "Küche.mem" means the same file on every system:
// UTF-8 is converted to the system's own form (UTF-16 on Windows), never
// read in the local code page.

#include <filesystem>
#include <string>
#include <string_view>

namespace brenko {

// The path named by UTF-8 text.
std::filesystem::path PathFromText(std::string_view utf8);

// The path as UTF-8 text (the separators as the system writes them).
std::string PathText(const std::filesystem::path& path);

}  // namespace brenko
