#include "platform/desktop/services/message_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>

#include "platform/desktop/binder/text.h"
#include "platform/desktop/services/asking_cursor.h"

namespace ovindra::desktop {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return QMessageBox::Critical;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kPlain:
      break;
  }
  return QMessageBox::NoIcon;
}

/// Keeps a short text from making a narrow box. A minimum width of the text itself would be taken for all
/// that a long one needs.
void Widen(QMessageBox& box) {
  constexpr int kNarrowest = 300;
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->addItem(new QSpacerItem(kNarrowest, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
}

}  // namespace

std::unique_ptr<QMessageBox> MakeMessageBox(const Message& message, QWidget* parent) {
  auto box = std::make_unique<QMessageBox>(parent);
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQt(message.text));
  box->setWindowTitle(ToQt(message.title));
  box->setIcon(IconOf(message.icon));
  if (message.buttons == MessageButtons::kYesNo) {
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box->button(QMessageBox::Yes)->setText("&Yes");
    box->button(QMessageBox::No)->setText("&No");
    box->setDefaultButton(QMessageBox::Yes);
    box->setEscapeButton(QMessageBox::No);
  } else {
    box->setStandardButtons(QMessageBox::Ok);
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
  }
  Widen(*box);
  return box;
}

Answer AnswerOf(const QMessageBox& box) {
  const auto button = box.standardButton(box.clickedButton());
  if (button == QMessageBox::Yes) return Answer::kYes;
  return button == QMessageBox::No ? Answer::kNo : Answer::kOk;
}

Answer WindowMessageBox::Show(const Message& message) {
  before_();
  const auto box = MakeMessageBox(message, QApplication::activeWindow());
  const AskingCursor cursor;
  box->exec();
  return AnswerOf(*box);
}

}  // namespace ovindra::desktop
