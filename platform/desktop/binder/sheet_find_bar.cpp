#include "platform/desktop/binder/sheet_find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include "platform/desktop/theme/icons.h"
#include "platform/desktop/theme/roles.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::desktop {
namespace {

constexpr int kEditWidth = 220;

QPushButton* IconButton(art::Glyph glyph, const QString& tip) {
  auto* button = new QPushButton;
  theme::role::Set(*button, theme::role::kIconOnly);
  button->setIcon(theme::GlyphIcon(glyph));
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  // The keyboard stays with the text.
  button->setFocusPolicy(Qt::NoFocus);
  return button;
}

}  // namespace

SheetFindBar::SheetFindBar(QWidget* parent)
    : QFrame(parent), edit_(new QLineEdit), nothing_(new QLabel("Not found")) {
  theme::role::Set(*this, theme::role::kCard);
  edit_->setPlaceholderText("Find in the sheet");
  edit_->setFixedWidth(kEditWidth);
  edit_->installEventFilter(this);
  auto* previous = IconButton(art::Glyph::ChevronUp, "Previous (Shift+Enter)");
  auto* next = IconButton(art::Glyph::ChevronDown, "Next (Enter)");
  auto* close = IconButton(art::Glyph::Close, "Close (Esc)");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 8, 8, 8);
  row->setSpacing(4);
  for (QWidget* part : std::initializer_list<QWidget*>{edit_, nothing_, previous, next, close})
    row->addWidget(part);
  nothing_->hide();
  connect(edit_, &QLineEdit::textChanged, this, &SheetFindBar::TextChanged);
  connect(next, &QPushButton::clicked, this, &SheetFindBar::NextAsked);
  connect(previous, &QPushButton::clicked, this, &SheetFindBar::PreviousAsked);
  connect(close, &QPushButton::clicked, this, &SheetFindBar::CloseAsked);
}

void SheetFindBar::ShowFound(bool found) {
  if (nothing_->isVisibleTo(this) == !found) return;
  const QString ink = "color: " + theme::Current().err.name();
  nothing_->setStyleSheet(ink);
  edit_->setStyleSheet(found ? QString() : ink);
  nothing_->setVisible(!found);
  adjustSize();
}

bool SheetFindBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool back = key.modifiers().testFlag(Qt::ShiftModifier);
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
      back ? emit PreviousAsked() : emit NextAsked();
      return true;
    case Qt::Key_Down:
      emit NextAsked();
      return true;
    case Qt::Key_Up:
      emit PreviousAsked();
      return true;
    case Qt::Key_Escape:
      emit CloseAsked();
      return true;
    default:
      return false;
  }
}

}  // namespace ovindra::desktop
