// The environment of the program on a machine folder: what machine.ini says,
// nothing of the host's.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/environment.h"

namespace tavr::folder {

class FolderEnvironment : public Environment {
 public:
  FolderEnvironment(std::vector<std::pair<std::string, std::string>> variables,
                    std::string app_path);

  std::string get(std::string_view name) override;
  std::string expand(std::string_view text) override;
  std::string appPath() override { return app_path_; }
  std::string exeName() override { return "tavrwipe"; }

 private:
  const std::string* find(std::string_view name) const;

  std::vector<std::pair<std::string, std::string>> variables_;
  std::string app_path_;
};

}  // namespace tavr::folder
