#include "app/sample_registry.h"

#include <cstdint>
#include <cstdio>
#include <span>
#include <string_view>

namespace tavr::sample {
namespace {

constexpr std::string_view kUser = "HKEY_CURRENT_USER\\Software\\";
constexpr std::string_view kExplorer =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
constexpr std::string_view kInternetExplorer =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\";
// The program is a 32-bit one for the registry: its settings lie in that view.
constexpr std::string_view kSettings = "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Tavrwork\\";

/// Writes keys and values as the registry editor exports them.
class ExportText {
 public:
  void key(std::string_view root, std::string_view path = {}) {
    text_.append("\n[").append(root).append(path).append("]\n");
  }
  void string(std::string_view name, std::string_view value) {
    begin(name);
    text_.append("\"").append(escaped(value)).append("\"\n");
  }
  void number(std::string_view name, std::uint32_t value) {
    char digits[16];
    std::snprintf(digits, sizeof digits, "%08x", value);
    begin(name);
    text_.append("dword:").append(digits).append("\n");
  }
  /// `type` 3 is plain "hex:", others carry their number.
  void bytes(std::string_view name, std::string_view value, int type = 3) {
    const std::size_t line = text_.size();
    begin(name);
    text_ += type == 3 ? "hex:" : "hex(" + std::to_string(type) + "):";
    std::size_t column = text_.size() - line;
    for (std::size_t i = 0; i < value.size(); ++i) {
      char digits[4];
      std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(value[i]));
      text_ += digits;
      if (i + 1 == value.size()) break;
      text_ += ',';
      if ((column += 3) > 76) {
        text_ += "\\\n  ";
        column = 2;
      }
    }
    text_ += '\n';
  }
  std::string text() && { return std::move(text_) + "\n"; }

 private:
  void begin(std::string_view name) {
    if (name.empty()) {
      text_ += "@=";
    } else {
      text_.append("\"").append(escaped(name)).append("\"=");
    }
  }
  static std::string escaped(std::string_view value) {
    std::string out;
    for (const char c : value) {
      if (c == '\\' || c == '"') out += '\\';
      out += c;
    }
    return out;
  }

  std::string text_ = "Windows Registry Editor Version 5.00\n";
};

/// UTF-16LE with its closing NUL, for texts that are plain ASCII.
std::string wide(std::string_view text) {
  std::string out;
  for (const char c : text) out.append({c, '\0'});
  return out.append(2, '\0');
}

// "MRUListEx": the numbers of the values, newest first, and -1.
std::string order(std::uint32_t count) {
  std::string out;
  for (std::uint32_t i = count; i-- > 0;) out.append({static_cast<char>(i), '\0', '\0', '\0'});
  return out.append(4, '\xFF');
}

void browserKeys(ExportText& out) {
  struct Browser {
    std::string_view key;
    bool two_profiles;
  };
  constexpr Browser kBrowsers[] = {
      {"BraveSoftware\\Brave-Browser", false},
      {"Google\\Chrome", true},
      {"Maxthon", false},
      {"Microsoft\\Edge", false},
      {"Torch", false},
      {"Vivaldi", false},
      {"Yandex\\YandexBrowser", false},
  };
  for (const Browser& browser : kBrowsers) {
    const std::string path = std::string(browser.key) + "\\PreferenceMACs";
    out.key(kUser, path);
    for (const std::string_view profile : {"\\Default", "\\Profile 1"}) {
      if (profile != "\\Default" && !browser.two_profiles) continue;
      out.key(kUser, path + std::string(profile));
      out.string("homepage", "6E1F3A0C9B5D27E84C11A07F52D3B8960F4E7A2C1D9B3865E07F1A2B4C8D9E30");
      out.string("session.startup_urls", "A17C05E93D2B4F68");
      out.key(kUser, path + std::string(profile) + "\\extensions.settings");
      out.string("nmmhkkegccagdldgiimedpiccmgmieda", "0B9E4D7712AC55F3");
    }
  }
}

void explorerKeys(ExportText& out) {
  out.key(kExplorer, "RunMRU");
  out.string("a", "cmd\\1");
  out.string("b", "\\\\server\\share\\1");
  out.string("MRUList", "ba");
  out.key(kExplorer, "TypedPaths");
  out.string("url1", "C:\\Users\\user\\Documents");
  out.string("url2", "https://www.example.com/search?q=\"tea\"");
  out.key(kExplorer, "WordWheelQuery");
  out.bytes("MRUListEx", order(2));
  out.bytes("0", wide("letter to jo"));
  out.bytes("1", wide("invoice 2025"));
  out.key(kExplorer, "RecentDocs");
  out.bytes("MRUListEx", order(1));
  out.bytes("0", wide("letter.txt"));
  out.key(kExplorer, "RecentDocs\\.txt");
  out.bytes("MRUListEx", order(1));
  out.bytes("0", wide("letter.txt"));
  out.key(kExplorer, "ComDlg32\\LastVisitedPidlMRU");
  out.bytes("MRUListEx", order(1));
  out.bytes("0", wide("notepad.exe"));
  out.key(kExplorer, "ComDlg32\\LastVisitedPidlMRULegacy");
  out.bytes("MRUListEx", order(1));
  out.bytes("0", wide("oldedit.exe"));
  out.key(kExplorer, "ComDlg32\\OpenSaveMRU");
  out.string("a", "C:\\Users\\user\\Documents\\letter.txt");
  out.string("MRUList", "a");
  out.key(kExplorer, "ComDlg32\\OpenSaveMRU\\txt");
  out.string("a", "C:\\Users\\user\\Documents\\letter.txt");
  out.string("MRUList", "a");
  out.key(kExplorer, "ComDlg32\\OpenSavePidlMRU\\txt");
  out.bytes("MRUListEx", order(1));
  out.bytes("0", wide("letter.txt"));
  // A neighbour of the cleaned keys, as on every machine.
  out.key(kExplorer, "Advanced");
  out.number("HideFileExt", 1);
  out.number("Hidden", 2);
  out.key(kExplorer, "Shell Folders");
  out.string("Cache", "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCache");
  out.string("Cookies", "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies");
  out.string("History", "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\History");
  out.key(kExplorer, "User Shell Folders");
  out.bytes("Cache", wide("%USERPROFILE%\\AppData\\Local\\Microsoft\\Windows\\INetCache"), 2);
  out.key(kUser,
          "Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\TrayNotify");
  out.bytes("IconStreams", wide("{6D809377-6AF0-444B-8957-A3773F02200E}\\chrome.exe"));
  out.bytes("PastIconsStream", wide("{6D809377-6AF0-444B-8957-A3773F02200E}\\setup.exe"));
  out.number("UserStartTime", 0x01DC5A30);
}

void internetExplorerKeys(ExportText& out) {
  out.key(kInternetExplorer, "Main");
  out.string("Start Page", "https://www.example.com/");
  out.key(kInternetExplorer, "TypedURLs");
  out.string("url1", "https://www.example.com/");
  out.string("url2", "https://bank.example.org/login");
  out.key(kInternetExplorer, "LowRegistry\\DOMStorage\\example.com");
  out.number("Total", 62);
  out.key(kInternetExplorer, "LowRegistry\\DOMStorage\\www.example.com");
  out.number("", 62);
  out.key(kInternetExplorer, "DOMStorage\\bank.example.org");
  out.number("", 18);
}

void otherKeys(ExportText& out) {
  out.key(kUser, "Sketch Board\\Recent");
  out.string("File1", "C:\\Users\\user\\Pictures\\plan.skb");
  out.key(kUser, "Media Box");
  out.string("LastFile", "C:\\Users\\user\\Music\\song.ogg");
  out.string("Volume", "80");
  out.key("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager");
  out.number("CriticalSectionTimeout", 2592000);
  // A renaming that an installer waits for: an empty second name deletes.
  out.bytes("PendingFileRenameOperations",
            wide("\\??\\C:\\Windows\\Temp\\setup.tmp") + wide("") + wide(""), 7);
}

void selection(ExportText& out, std::span<const std::string_view> boxes) {
  out.key(kSettings, "Tavr Wipe\\option\\win");
  for (const std::string_view box : boxes) out.string(box, "1");
}

void programKeys(ExportText& out) {
  out.key(kSettings, "Tavr Wipe");
  out.string("language", "english.ini");
  out.string("secure_value", "1");
  out.key(kSettings, "Tavr Wipe\\option");
  out.string("firsttime", "1");
  out.key(kSettings, "Tavr Wipe\\option\\option");
  out.string("3", "0");
  constexpr std::string_view kEverything[] = {"8",  "9",  "10", "11", "12", "13", "44",
                                              "45", "46", "49", "52", "53", "54"};
  selection(out, kEverything);
  out.key(kSettings, "Tavr Brightbox Deluxe\\statics\\tracks");
  out.string("rcount", "41");
  out.string("count", "1250");
  out.string("size", "20480.5");
}

}  // namespace

std::string machineRegistry() {
  ExportText out;
  browserKeys(out);
  explorerKeys(out);
  internetExplorerKeys(out);
  otherKeys(out);
  programKeys(out);
  return std::move(out).text();
}

std::string chromeCacheRegistry() {
  ExportText out;
  out.key(kUser, "Google\\Chrome\\PreferenceMACs\\Default");
  constexpr std::string_view kSessions[] = {"44"};
  selection(out, kSessions);
  return std::move(out).text();
}

}  // namespace tavr::sample
