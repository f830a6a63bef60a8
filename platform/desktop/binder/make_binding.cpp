#include "platform/desktop/binder/make_binding.h"

#include "platform/desktop/binder/button_bindings.h"
#include "platform/desktop/binder/combo_binding.h"
#include "platform/desktop/binder/date_bindings.h"
#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/grid_binding.h"
#include "platform/desktop/binder/list_binding.h"
#include "platform/desktop/binder/menu_bindings.h"
#include "platform/desktop/binder/sheet_binding.h"
#include "platform/desktop/binder/shown_bindings.h"
#include "platform/desktop/binder/tab_bindings.h"
#include "platform/desktop/binder/text_binding.h"

namespace ovindra::desktop {
namespace {

/// One kind of control, the kind of widget that shows it, and the binding of the two.
template <typename ControlKind, typename WidgetKind, typename BindingKind>
Binding* Try(FormView& view, Control& control, QWidget* widget) {
  auto* kind = dynamic_cast<ControlKind*>(&control);
  auto* shown = qobject_cast<WidgetKind*>(widget);
  return kind == nullptr || shown == nullptr ? nullptr : new BindingKind(view, *kind, *shown);
}

using Maker = Binding* (*)(FormView&, Control&, QWidget*);

/// The more special kind stands before the more general.
constexpr Maker kMakers[] = {
    &Try<Button, QPushButton, ButtonBinding>,
    &Try<OptionButton, QRadioButton, OptionBinding>,
    &Try<CheckBox, QCheckBox, CheckBinding>,
    &Try<ComboBox, QComboBox, ComboBinding>,
    &Try<TextBox, QLineEdit, TextBinding>,
    &Try<Grid, GridView, GridBinding>,
    &Try<ListBox, QListView, ListBinding>,
    &Try<DatePicker, QDateEdit, DateBinding>,
    &Try<MonthView, QCalendarWidget, MonthBinding>,
    &Try<TabControl, QTabWidget, TabPagesBinding>,
    &Try<TabStrip, QTabBar, TabStripBinding>,
    &Try<Frame, QWidget, FrameBinding>,
    &Try<Label, QLabel, LabelBinding>,
    &Try<PictureBox, QLabel, PictureBinding>,
    &Try<Animation, QProgressBar, AnimationBinding>,
    &Try<StatusBar, QStatusBar, StatusBarBinding>,
    &Try<ReportSheet, SheetView, SheetBinding>,
};

}  // namespace

Binding* MakeBinding(FormView& view, Control& control, QWidget* widget) {
  if (auto* timer = dynamic_cast<Timer*>(&control)) return new TimerBinding(view, *timer);
  if (auto* item = dynamic_cast<MenuItem*>(&control)) return MakeMenuBinding(view, *item);
  for (const Maker maker : kMakers) {
    if (Binding* binding = maker(view, control, widget)) return binding;
  }
  return nullptr;
}

}  // namespace ovindra::desktop
