#include "platform/folder/folder_dialogs.h"

#include <string>
#include <utility>

#include "basic/text.h"

namespace tavr::folder {

namespace {

constexpr int kAnswerOk = 1;
constexpr std::uint32_t kButtons = 0xF;  // of the flags: which buttons the box has
constexpr std::uint32_t kOkCancel = 1;
constexpr std::string_view kApplicationTitle = "Spoorwipe";

bool holds(std::string_view text, std::string_view part) {
  return UCase(text).find(UCase(part)) != std::string::npos;
}

}  // namespace

FolderDialogs::FolderDialogs(std::optional<Answers> answers, AskPerson ask, Events& events)
    : answers_(std::move(answers)), ask_(std::move(ask)), events_(events) {}

int FolderDialogs::messageBox(std::string_view text, std::uint32_t flags, std::string_view title) {
  events_.doEvents();  // a box pumps until it is closed
  if ((flags & kButtons) <= kOkCancel) return kAnswerOk;
  if (!answers_) {
    return ask_ ? ask_(text, title.empty() ? kApplicationTitle : title) : kAnswerNo;
  }
  for (const auto& [part, yes] : answers_->texts) {
    if (holds(text, part)) return yes ? kAnswerYes : kAnswerNo;
  }
  return answers_->yes_by_default ? kAnswerYes : kAnswerNo;
}

}  // namespace tavr::folder
