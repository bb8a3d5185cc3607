#include "fuzz/fuzz_machine.h"

#include <stdlib.h>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace tavr::fuzz {

namespace fs = std::filesystem;

FuzzFolder::FuzzFolder() {
  std::string pattern = (fs::temp_directory_path() / "machine-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = pattern;
  write("machine.ini", "[clock]\nstart=2026-11-20T10:00:00\n[program]\npath=C:\\App\n");
  write("C/App/tavrwipe.exe", "");
}

FuzzFolder::~FuzzFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

void FuzzFolder::write(std::string_view name, std::string_view bytes) const {
  const fs::path file = path_ / name;
  if (!fs::is_directory(file.parent_path())) fs::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

std::string FuzzFolder::read(std::string_view name) const {
  std::ifstream in(path_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void FuzzFolder::remove(std::string_view name) const { fs::remove(path_ / name); }

}  // namespace tavr::fuzz
