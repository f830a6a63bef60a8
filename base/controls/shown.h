// Controls that only show something: labels, pictures, the progress animation, and the timer, which shows
// nothing.
#pragma once

#include <string>
#include <string_view>

#include "base/colour.h"
#include "base/controls/control.h"

namespace ovindra {

/// Lengths on the splash window are in its own unit of 1/1440 inch.
using Twips = int;

class Label : public Control {
 public:
  template <typename... Options>
  Label(Container& container, std::string_view name, std::string_view caption, Options... options)
      : Control(container, name, caption) {
    (Apply(options), ...);
  }

  bool TakesFocus() const override { return false; }

  Twips left() const { return left_; }
  void SetLeft(Twips left) {
    left_ = left;
    Changed(Aspect::kPlace);
  }

  Colour fore_colour() const { return fore_colour_; }
  void SetForeColour(Colour colour) {
    fore_colour_ = colour;
    Changed(Aspect::kCaption);
  }

 private:
  using Control::Apply;

  Twips left_ = 0;
  Colour fore_colour_ = 0;
};

class PictureBox : public Control {
 public:
  template <typename... Options>
  PictureBox(Container& container, std::string_view name, Options... options) : Control(container, name, "") {
    (Apply(options), ...);
  }

  bool TakesFocus() const override { return false; }

  /// The file that the picture comes from, named as it lies beside the program; empty for none.
  const std::string& picture() const { return picture_; }
  void SetPicture(std::string file) {
    picture_ = std::move(file);
    Changed(Aspect::kText);
  }

 private:
  using Control::Apply;

  std::string picture_;
};

class Animation : public Control {
 public:
  template <typename... Options>
  Animation(Container& container, std::string_view name, Options... options) : Control(container, name, "") {
    (Apply(options), ...);
  }

  bool TakesFocus() const override { return false; }

  const std::string& file() const { return file_; }
  bool is_playing() const { return is_playing_; }
  void Open(std::string file) {
    file_ = std::move(file);
    Changed(Aspect::kText);
  }
  void Play() { SetPlaying(true); }
  void Stop() { SetPlaying(false); }

 private:
  using Control::Apply;
  void SetPlaying(bool playing) {
    is_playing_ = playing;
    Changed(Aspect::kText);
  }

  std::string file_;
  bool is_playing_ = false;
};

class Timer : public Control {
 public:
  Timer(Container& container, std::string_view name, int interval_ms)
      : Control(container, name, ""), interval_ms_(interval_ms) {}

  bool TakesFocus() const override { return false; }

  int interval_ms() const { return interval_ms_; }
  void SetInterval(int milliseconds) {
    interval_ms_ = milliseconds;
    Changed(Aspect::kState);
  }

  /// The time has passed once more: fires timer unless the timer is disabled.
  void Tick() {
    if (enabled() && interval_ms_ > 0) timer.Fire();
  }

  Event<> timer;

 private:
  int interval_ms_;
};

}  // namespace ovindra
