#include "platform/folder/folder_environment.h"

#include "basic/text.h"

namespace tavr::folder {

FolderEnvironment::FolderEnvironment(std::vector<std::pair<std::string, std::string>> variables,
                                     std::string app_path)
    : variables_(std::move(variables)), app_path_(std::move(app_path)) {}

const std::string* FolderEnvironment::find(std::string_view name) const {
  for (const auto& [key, value] : variables_) {
    if (sameText(key, name)) return &value;
  }
  return nullptr;
}

std::string FolderEnvironment::get(std::string_view name) {
  const std::string* value = find(name);
  return value == nullptr ? std::string() : *value;
}

std::string FolderEnvironment::expand(std::string_view text) {
  text = untilNul(text);
  std::string out;
  while (!text.empty()) {
    const std::size_t end = text.front() == '%' ? text.find('%', 1) : std::string_view::npos;
    const std::string* value =
        end == std::string_view::npos ? nullptr : find(text.substr(1, end - 1));
    if (value != nullptr) {
      out += *value;
      text.remove_prefix(end + 1);
    } else {
      // The "%" that ends an unknown name may begin a known one.
      out += text.front();
      text.remove_prefix(1);
    }
  }
  return out;
}

}  // namespace tavr::folder
