// A form: a window's logic over its named controls. A form class declares its controls as members, wires
// their events in its constructor, and is shown, activated and unloaded by whoever hosts it. It holds the
// focus, runs the validate and lost-focus steps, and tells an observer what changed, so that a window can
// follow.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls/control.h"
#include "base/controls/event.h"
#include "base/machine/machine.h"
#include "base/runtime_error.h"

namespace ovindra {

/// Whatever can hold controls: a form or one of its frames.
class Container {
 public:
  virtual ~Container() = default;
  virtual Form& owner_form() = 0;
  virtual Control* as_frame() = 0;
};

/// Follows a form's changes, to show them.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void ControlChanged(Control& control, Aspect aspect) = 0;
  virtual void CaptionChanged() = 0;
  virtual void FocusChanged() = 0;
};

/// Those who show and unload forms.
class FormHost {
 public:
  virtual ~FormHost() = default;
  /// The form of that name, which is made but not shown when it is not open; null when nobody makes it.
  virtual Form* Made(std::string_view form_name) = 0;
  /// Shows the form of that name: the one that is open, else a new one. A name that nobody makes is passed
  /// over.
  virtual void Show(std::string_view form_name) = 0;
  /// Closes the form. Its object lives until the handlers that run have ended.
  virtual void Unload(Form& form) = 0;
  /// Ends the program in the ordinary way.
  virtual void End() = 0;
};

/// The error tail: number, blank and text in a critical box titled "OVD".
void ShowErrorTail(Machine& machine, const RuntimeError& error);

class Form : public Container {
 public:
  Form(Machine& machine, std::string_view name, std::string_view caption);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption);

  /// In the order of their declaration, which is the order of the Tab key.
  const std::vector<Control*>& controls() const { return controls_; }

  /// The control of that name as scenarios write it, `Text1` or `m1(3)`, without regard to case; null for
  /// none.
  Control* Find(std::string_view full_name) const;

  Control* focused() const { return focused_; }

  /// A person moves the focus: the control that loses it may keep it by its validate event, else gets its
  /// lost-focus event. False when the focus did not come to rest on the control.
  bool UserFocus(Control& control);

  /// A person moves the focus on to the next control in the order of the Tab key (the previous one when
  /// backward).
  void UserLeave(Control& control, bool backward = false);

  /// The next control in the order of the Tab key that can have the focus; null when there is no other.
  Control* NextInOrder(const Control& control, bool backward = false) const;

  /// A control that was disabled or hidden while it had the focus gives it back to the one before it: Cancel
  /// to Add, a calendar to the button that opened it. Called when a person's action has ended.
  void SettleFocus();

  /// The button that Enter presses from a text box, where a form has one.
  Control* default_button() const { return default_button_; }

  void Observe(FormObserver* observer) { observer_ = observer; }
  void HostedBy(FormHost& host) { host_ = &host; }

  Event<> load;
  Event<> activate;
  Event<bool&>
      query_close;  // a person closes the window by its frame; set to true, the argument keeps it open
  Event<> unload;
  Event<KeyName> key_down;  // keys that the form sees before its controls

  Machine& machine() { return machine_; }

  Form& owner_form() override { return *this; }
  Control* as_frame() override { return nullptr; }

 protected:
  /// Wires an event to a procedure without the error tail: an error is the caller's, in the end the
  /// program's.
  template <typename F, typename... Args>
  void Plain(Event<Args...>& event, void (F::*procedure)(Args...)) {
    event.Handle([this, procedure](Args... args) { (static_cast<F*>(this)->*procedure)(args...); });
  }
  template <typename F, typename... Args>
  requires(sizeof...(Args) > 0) void Plain(Event<Args...>& event, void (F::*procedure)()) {
    event.Handle([this, procedure](Args...) { (static_cast<F*>(this)->*procedure)(); });
  }

  /// Wires an event to a procedure with the error tail: a run-time error is shown and the procedure left.
  template <typename F, typename... Args>
  void Guarded(Event<Args...>& event, void (F::*procedure)(Args...)) {
    event.Handle(
        [this, procedure](Args... args) { Guard([&] { (static_cast<F*>(this)->*procedure)(args...); }); });
  }
  template <typename F, typename... Args>
  requires(sizeof...(Args) > 0) void Guarded(Event<Args...>& event, void (F::*procedure)()) {
    event.Handle([this, procedure](Args...) { Guard([&] { (static_cast<F*>(this)->*procedure)(); }); });
  }

  /// Runs a procedure that carries the error tail though no event calls it.
  template <typename Procedure>
  void Guard(Procedure procedure) {
    try {
      procedure();
    } catch (const RuntimeError& error) {
      ShowErrorTail(machine_, error);
    }
  }

  FormHost& host();
  void Close() { host().Unload(*this); }
  void SetDefaultButton(Control& button) { default_button_ = &button; }

 private:
  friend class Control;

  void Add(Control& control) { controls_.push_back(&control); }
  void MoveFocus(Control* control);

  Machine& machine_;
  std::string name_;
  std::string caption_;
  std::vector<Control*> controls_;
  Control* focused_ = nullptr;
  Control* default_button_ = nullptr;
  FormObserver* observer_ = nullptr;
  FormHost* host_ = nullptr;
};

}  // namespace ovindra
