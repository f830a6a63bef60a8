#include "platform/desktop/binder/button_bindings.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QVariant>

#include "platform/desktop/art/glyphs.h"
#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/text.h"
#include "platform/desktop/theme/icons.h"

namespace ovindra::desktop {
namespace {

struct NamedGlyph {
  const char* name;
  art::Glyph glyph;
};
constexpr NamedGlyph kGlyphs[] = {{"calendar", art::Glyph::Calendar},
                                  {"left", art::Glyph::ChevronLeft},
                                  {"right", art::Glyph::ChevronRight}};

}  // namespace

PressBinding::PressBinding(FormView& view, Control& control, QAbstractButton& button)
    : WidgetBinding(view, control, button), button_(button) {
  button.setAutoExclusive(false);
  connect(&button, &QAbstractButton::clicked, this, [this] { Act([this] { this->control().UserClick(); }); });
}

void PressBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  if (Has(aspects, Aspect::kCaption)) button_.setText(ToQt(control().caption()));
}

QChar PressBinding::mnemonic() const {
  const QKeySequence keys = QKeySequence::mnemonic(ToQt(control().caption()));
  return keys.isEmpty() ? QChar() : QChar(static_cast<char16_t>(keys[0].key()));
}

ButtonBinding::ButtonBinding(FormView& view, Button& control, QPushButton& button)
    : PressBinding(view, control, button) {
  const QString name = button.property("glyph").toString();
  for (const NamedGlyph& glyph : kGlyphs) {
    if (name == glyph.name) button.setIcon(theme::GlyphIcon(glyph.glyph));
  }
}

OptionBinding::OptionBinding(FormView& view, OptionButton& control, QRadioButton& button)
    : PressBinding(view, control, button), option_(control), button_(button) {}

void OptionBinding::Show(Aspects aspects) {
  PressBinding::Show(aspects);
  button_.setChecked(option_.on());
}

bool OptionBinding::KeyPressed(QKeyEvent& event) {
  const int key = event.key();
  if (key != Qt::Key_Left && key != Qt::Key_Right) return WidgetBinding::KeyPressed(event);
  const KeyName walk = key == Qt::Key_Left ? KeyName::kUp : KeyName::kDown;
  Act([&] { option_.UserKey({walk}); });
  return true;
}

CheckBinding::CheckBinding(FormView& view, CheckBox& control, QCheckBox& button)
    : PressBinding(view, control, button), check_(control), button_(button) {}

void CheckBinding::Show(Aspects aspects) {
  PressBinding::Show(aspects);
  button_.setChecked(check_.on());
}

}  // namespace ovindra::desktop
