// What is pressed and switched: buttons with a caption or a picture, option buttons, check boxes.
#pragma once

#include "base/controls/control.h"

namespace ovindra {

class Button : public Control {
 public:
  template <typename... Options>
  Button(Container& container, std::string_view name, std::string_view caption, Options... options)
      : Control(container, name, caption) {
    (Apply(options), ...);
  }

  /// Presses the button by code, which fires its click.
  void Press() { click.Fire(); }

 protected:
  /// Enter and Space press the button.
  void DoKey(Key key) override;

 private:
  using Control::Apply;
};

/// A button that shows a picture where others have a caption.
class PictureButton : public Button {
 public:
  using Button::Button;
};

/// An option that is on from the start.
struct OnTag {};
inline constexpr OnTag On{};

/// One of the options of a frame (or of the form itself), which exclude one another.
class OptionButton : public Control {
 public:
  template <typename... Options>
  OptionButton(Container& container, std::string_view name, std::string_view caption, Options... options)
      : Control(container, name, caption) {
    (Apply(options), ...);
  }

  bool on() const { return on_; }

  /// Switched on, by code or by a person, it switches the others of its frame off and fires click when it was
  /// off.
  void SetOn(bool on);

  /// The Tab key stops at the option that is on, at each where none is.
  bool IsTabStop() const override;

 protected:
  void DoClick() override;
  /// Up and Down choose the neighbour in the frame, round its ends.
  void DoKey(Key key) override;

 private:
  using Control::Apply;
  void Apply(OnTag) { on_ = true; }
  void SwitchOn();
  void ClickNeighbour(int by);

  template <typename Visit>
  void ForEachOfGroup(Visit visit) const;

  bool on_ = false;
};

class CheckBox : public Control {
 public:
  template <typename... Options>
  CheckBox(Container& container, std::string_view name, std::string_view caption, Options... options)
      : Control(container, name, caption) {
    (Apply(options), ...);
  }

  CheckBox(Container& container, std::string_view name, int index, std::string_view caption);

  bool on() const { return on_; }

  /// Fires click when the value changes.
  void SetOn(bool on);

 protected:
  void DoClick() override { SetOn(!on_); }
  void DoKey(Key key) override;

 private:
  using Control::Apply;

  bool on_ = false;
};

}  // namespace ovindra
