// registry.reg: what is read is written and read back as the same registry,
// from the file's own notation and from the writer's.
#include <string>
#include <string_view>

#include "fuzz/checks.h"
#include "platform/folder/malformed_file.h"
#include "platform/folder/registry_encoding.h"
#include "platform/folder/registry_reader.h"
#include "platform/folder/registry_tree.h"
#include "platform/folder/registry_writer.h"

namespace {

using tavr::folder::RegistryNode;
using tavr::folder::RegistryTree;
using tavr::fuzz::require;

void requireSame(const RegistryNode& a, const RegistryNode& b) {
  require(a.name() == b.name(), "a key keeps its name");
  require(a.listed() == b.listed(), "a key keeps its section");
  require(a.values().size() == b.values().size(), "a key keeps its values");
  for (std::size_t i = 0; i < a.values().size(); ++i) {
    require(a.values()[i]->name == b.values()[i]->name, "a value keeps its name");
    require(a.values()[i]->type == b.values()[i]->type, "a value keeps its type");
    require(a.values()[i]->data == b.values()[i]->data, "a value keeps its data");
  }
  require(a.subkeys().size() == b.subkeys().size(), "a key keeps its subkeys");
  for (std::size_t i = 0; i < a.subkeys().size(); ++i) {
    requireSame(*a.subkeys()[i], *b.subkeys()[i]);
  }
}

void requireSame(const RegistryTree& a, const RegistryTree& b) {
  for (std::size_t i = 0; i < a.roots().size(); ++i) requireSame(*a.roots()[i], *b.roots()[i]);
}

// The values without the notation that they were read in.
void copyKey(const RegistryNode& from, RegistryTree& tree, RegistryNode& to) {
  if (from.listed()) tree.list(to);
  for (const auto& value : from.values()) {
    tree.setValue(to, value->name, value->type, value->data);
  }
  for (const auto& subkey : from.subkeys()) {
    copyKey(*subkey, tree, *tree.makeSubkey(to, subkey->name()));
  }
}

void check(const std::string& text, bool crlf) {
  RegistryTree tree;
  tavr::folder::readRegistry("registry.reg", text, tree);
  const std::string written = tavr::folder::writeRegistry(tree, crlf);
  RegistryTree again;
  tavr::folder::readRegistry("registry.reg", written, again);
  requireSame(tree, again);
  require(tavr::folder::writeRegistry(again, crlf) == written, "a second writing is the same");

  RegistryTree copy;
  for (std::size_t i = 0; i < tree.roots().size(); ++i) {
    copyKey(*tree.roots()[i], copy, *copy.roots()[i]);
  }
  const std::string own = tavr::folder::writeRegistry(copy, crlf);
  RegistryTree own_again;
  tavr::folder::readRegistry("registry.reg", own, own_again);
  requireSame(copy, own_again);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(tavr::fuzz::asText(data, size));
  try {
    tavr::folder::RegistryEncoding encoding;
    const std::string text = tavr::folder::decodeRegistry("registry.reg", bytes, encoding);
    require(tavr::folder::encodeRegistry(text, encoding) == bytes, "the encoding loses nothing");
    check(text, encoding.crlf);
  } catch (const tavr::folder::MalformedFile& refused) {
    require(std::string_view(refused.what()).starts_with("registry.reg:"), "a line is named");
  }
  return 0;
}
