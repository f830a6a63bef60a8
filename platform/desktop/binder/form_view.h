// Shows one form: loads its .ui file, ties every control to the widget of its name, shows what changes when
// an action has ended, and keeps the focus of form and widgets one and the same. The view owns the widgets
// until its window takes them over. A control without a widget and a widget without a control are listed in
// `untied`, for the tests; the program runs on without them.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <vector>

#include "base/controls/form.h"

class QKeyEvent;

namespace ovindra::desktop {

class Binding;
class WidgetBinding;

/// Timers run by themselves, or whoever tests the form lets them tick.
enum class Timers { kRun, kStandStill };

/// What views are shown with.
struct ViewSettings {
  /// The folder beside the program that pictures are read from.
  QString pictures;
  Timers timers = Timers::kRun;
  /// Told where a form's focus has moved to, when somebody keeps a record of it.
  std::function<void(const Form&)> focus_moved = {};
};

/// By what a person moves the focus: the mouse leaves the caret where it clicked.
enum class FocusBy { kMouse, kKeyboard };

/// Runs a person's action on the program, to its end.
using Perform = std::function<void(const std::function<void()>&)>;

class FormView : public QObject, public FormObserver {
 public:
  FormView(Form& form, Perform perform, ViewSettings settings);
  ~FormView() override;

  /// Loads the form's file and ties the controls. Done once, when the form is first shown.
  void Build();
  bool IsBuilt() const { return root_ != nullptr; }

  /// The outermost widget of the form's file.
  QWidget* root() const { return root_; }
  Form& form() const { return form_; }
  const ViewSettings& settings() const { return settings_; }
  /// What the form's file and the form do not have in common.
  const QStringList& untied() const { return untied_; }

  /// The widget that shows the control; null where none does.
  WidgetBinding* BindingOf(const Control& control) const;

  /// Shows what has changed since the last time.
  void ShowChanges();
  /// Moves the widgets' focus to the control that has the form's.
  void ShowFocus();

  /// The binding has something to show.
  void Mark(Binding& binding, unsigned aspects);

  /// A person's action. False when the form is gone after it, or when what happens is the showing of changes
  /// and no action at all.
  bool Act(const std::function<void()>& action);
  /// A person moves the focus to the control. False when it did not come to rest there.
  bool UserFocus(WidgetBinding& binding, FocusBy by);
  /// A person moves the focus on by the Tab key.
  void UserTab(bool backward);
  /// The first control in order gets the focus, where none has it.
  void TakeFirstFocus();
  /// A person presses a key while no control has the focus.
  void UserKeyOnForm(const QKeyEvent& event);
  /// Hands over what stands half typed in the field that has the focus.
  void Commit();

  /// A widget has got the focus, by whatever way; one that the form knows nothing of is undone.
  void FocusCameTo(const WidgetBinding& binding);
  /// The control that Alt and the letter press; null for none.
  WidgetBinding* WithMnemonic(const QKeyEvent& event) const;
  /// Another control that can be used has the same letter.
  bool SharesMnemonic(const WidgetBinding& binding) const;

  /// The form is unloaded: nothing touches it any more.
  void Retire();
  bool IsShowing() const { return is_showing_; }
  bool IsRetired() const { return is_retired_; }

  void ControlChanged(Control& control, Aspect aspect) override;
  void CaptionChanged() override { caption_changed_ = true; }
  void FocusChanged() override;

 private:
  void Tie();
  /// The control's binding where it can be used and has that letter, else null.
  WidgetBinding* UsableWith(const Control& control, QChar letter) const;
  /// False while another child window of the main window is the active one: its focus must not be stolen.
  bool IsActive() const;
  void Activate();

  Form& form_;
  Perform perform_;
  ViewSettings settings_;
  QPointer<QWidget> root_;
  QHash<const Control*, Binding*> by_control_;
  QStringList untied_;
  std::vector<Binding*> changed_;
  bool caption_changed_ = true;
  bool focus_changed_ = true;
  bool is_showing_ = false;
  bool by_mouse_ = false;
  bool is_retired_ = false;
};

}  // namespace ovindra::desktop
