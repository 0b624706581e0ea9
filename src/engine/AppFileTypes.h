#pragma once
// The file types that the program declares. Constants.

#include <array>

struct FileType {
  const char* name;
  const char* extension;  ///< with its point
  const char* type = "";
  const char* creator = "";
  const char* mimeType = "";
  const char* conformsTo = "";
};

namespace AppFileTypes {
inline constexpr FileType VantryTask{"Vantry Uploader Task", ".vnt"};
inline constexpr std::array All{VantryTask};
}  // namespace AppFileTypes
