#include "ui/win32/animation.h"

#include <vector>

#include "platform/win32/wide.h"
#include "ui/win32/gdi_plus.h"

namespace tavr::win32 {

namespace {

constexpr int kUsualDelay = 100;  // ms; what a viewer takes for a frame without one
constexpr int kUnit = 10;         // the file counts hundredths of a second

std::vector<int> readDelays(Gdiplus::Bitmap& picture, int frames) {
  std::vector<int> delays(static_cast<std::size_t>(frames), kUsualDelay);
  const UINT size = picture.GetPropertyItemSize(PropertyTagFrameDelay);
  if (size == 0) return delays;
  std::vector<char> memory(size);
  auto* const item = reinterpret_cast<Gdiplus::PropertyItem*>(memory.data());
  if (picture.GetPropertyItem(PropertyTagFrameDelay, size, item) != Gdiplus::Ok) return delays;
  const auto* const values = static_cast<const ULONG*>(item->value);
  const std::size_t count = std::min<std::size_t>(delays.size(), item->length / sizeof(ULONG));
  for (std::size_t i = 0; i < count; ++i) {
    if (values[i] > 0) delays[i] = static_cast<int>(values[i]) * kUnit;
  }
  return delays;
}

// What the program carries under the file's name, as a stream that owns a copy
// of it; null for none.
IStream* ownData(const std::wstring& file) {
  const std::wstring name = file.substr(file.find_last_of(L"\\/") + 1);
  const HRSRC place = FindResourceW(nullptr, name.c_str(), RT_RCDATA);
  const HGLOBAL loaded = place == nullptr ? nullptr : LoadResource(nullptr, place);
  const void* const data = loaded == nullptr ? nullptr : LockResource(loaded);
  IStream* stream = nullptr;
  if (data == nullptr || FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream))) return nullptr;
  ULONG written = 0;
  const DWORD size = SizeofResource(nullptr, place);
  if (SUCCEEDED(stream->Write(data, size, &written)) && written == size) return stream;
  stream->Release();
  return nullptr;
}

bool isRead(Gdiplus::Bitmap& picture) { return picture.GetLastStatus() == Gdiplus::Ok; }

std::unique_ptr<Gdiplus::Bitmap> pictureOf(const std::wstring& file) {
  auto picture = std::make_unique<Gdiplus::Bitmap>(file.c_str());
  if (isRead(*picture)) return picture;
  IStream* const stream = ownData(file);
  if (stream == nullptr) return nullptr;
  picture = std::make_unique<Gdiplus::Bitmap>(stream);
  // The picture holds the stream as long as it needs it.
  stream->Release();
  return isRead(*picture) ? std::move(picture) : nullptr;
}

void CALLBACK onTimer(HWND, UINT, UINT_PTR id, DWORD) {
  reinterpret_cast<Animation*>(id)->advance();
}

}  // namespace

struct Animation::Pictures {
  std::unique_ptr<Gdiplus::Bitmap> picture;
  int frames = 0;
  int frame = 0;
  std::vector<int> delays;
};

Animation::Animation() = default;

Animation::~Animation() { stop(); }

bool Animation::load(std::string_view file) {
  stop();
  pictures_.reset();
  startGdiPlus();
  auto loaded = std::make_unique<Pictures>();
  loaded->picture = pictureOf(wide(file));
  if (loaded->picture == nullptr) return false;
  const GUID time = Gdiplus::FrameDimensionTime;
  loaded->frames = std::max(1, static_cast<int>(loaded->picture->GetFrameCount(&time)));
  loaded->delays = readDelays(*loaded->picture, loaded->frames);
  pictures_ = std::move(loaded);
  return true;
}

int Animation::frames() const { return pictures_ ? pictures_->frames : 0; }

int Animation::frame() const { return pictures_ ? pictures_->frame : 0; }

int Animation::delay(int index) const {
  if (index < 0 || index >= frames()) return 0;
  return pictures_->delays[static_cast<std::size_t>(index)];
}

SIZE Animation::size() const {
  if (!pictures_) return {0, 0};
  return {static_cast<LONG>(pictures_->picture->GetWidth()),
          static_cast<LONG>(pictures_->picture->GetHeight())};
}

void Animation::start(HWND window) {
  if (window_ != nullptr || frames() < 2) return;
  window_ = window;
  SetTimer(window, reinterpret_cast<UINT_PTR>(this), static_cast<UINT>(delay(frame())), &onTimer);
}

void Animation::stop() {
  if (window_ != nullptr) KillTimer(window_, reinterpret_cast<UINT_PTR>(this));
  window_ = nullptr;
}

bool Animation::running() const { return window_ != nullptr; }

void Animation::advance() {
  if (!pictures_) return;
  const int before = delay(frame());
  pictures_->frame = (pictures_->frame + 1) % pictures_->frames;
  const GUID time = Gdiplus::FrameDimensionTime;
  pictures_->picture->SelectActiveFrame(&time, static_cast<UINT>(pictures_->frame));
  if (window_ == nullptr) return;
  InvalidateRect(window_, nullptr, FALSE);
  if (delay(frame()) == before) return;
  SetTimer(window_, reinterpret_cast<UINT_PTR>(this), static_cast<UINT>(delay(frame())), &onTimer);
}

void Animation::draw(HDC dc, const RECT& area) const {
  if (!pictures_ || IsRectEmpty(&area)) return;
  const SIZE own = size();
  const double fit = std::min(static_cast<double>(area.right - area.left) / own.cx,
                              static_cast<double>(area.bottom - area.top) / own.cy);
  const int width = static_cast<int>(own.cx * fit);
  const int height = static_cast<int>(own.cy * fit);
  Gdiplus::Graphics graphics(dc);
  graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  graphics.DrawImage(
      pictures_->picture.get(), static_cast<INT>(area.left + (area.right - area.left - width) / 2),
      static_cast<INT>(area.top + (area.bottom - area.top - height) / 2), width, height);
}

}  // namespace tavr::win32
