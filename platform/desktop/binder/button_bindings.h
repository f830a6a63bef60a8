// What is pressed and switched: push buttons, option buttons, check boxes. Captions come from the form.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "base/controls/buttons.h"
#include "platform/desktop/binder/binding.h"

namespace ovindra::desktop {

/// What all of them share: a caption with a mnemonic, and a click.
class PressBinding : public WidgetBinding {
 public:
  PressBinding(FormView& view, Control& control, QAbstractButton& button);

  void Show(Aspects aspects) override;
  QChar mnemonic() const override;

 private:
  QAbstractButton& button_;
};

/// A button may show a sign, which the property `glyph` names: calendar, left, right.
class ButtonBinding : public PressBinding {
 public:
  ButtonBinding(FormView& view, Button& control, QPushButton& button);
};

class OptionBinding : public PressBinding {
 public:
  OptionBinding(FormView& view, OptionButton& control, QRadioButton& button);

  void Show(Aspects aspects) override;

 protected:
  /// Left and Right are Up and Down.
  bool KeyPressed(QKeyEvent& event) override;

 private:
  OptionButton& option_;
  QRadioButton& button_;
};

class CheckBinding : public PressBinding {
 public:
  CheckBinding(FormView& view, CheckBox& control, QCheckBox& button);

  void Show(Aspects aspects) override;

 private:
  CheckBox& check_;
  QCheckBox& button_;
};

}  // namespace ovindra::desktop
