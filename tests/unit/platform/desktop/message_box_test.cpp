#include "platform/desktop/services/message_box.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "desk.h"

namespace ovindra::desktop {
namespace {

constexpr auto kLong =
    "-2147467259 Data source name not found, and no default driver specified, whichever driver it was that "
    "was asked";

/// Shows the message, lets `look` see the box, presses the key and gives the answer.
Answer Press(const Message& message, int key, const std::function<void(QMessageBox&)>& look = {}) {
  UseOffscreenApplication();
  const auto box = MakeMessageBox(message, nullptr);
  QTimer::singleShot(0, box.get(), [&] {
    QApplication::setActiveWindow(box.get());
    if (look) look(*box);
    QTest::keyClick(box->focusWidget(), static_cast<Qt::Key>(key));
  });
  box->exec();
  return AnswerOf(*box);
}

TEST(MessageBoxes, EnterSaysYesAndEscapeSaysNo) {
  const Message question{"Are You Sure Want to Save it", "Sure ?", MessageIcon::kQuestion,
                         MessageButtons::kYesNo};
  EXPECT_EQ(Press(question, Qt::Key_Return), Answer::kYes);
  EXPECT_EQ(Press(question, Qt::Key_Escape), Answer::kNo);
  EXPECT_EQ(Press(question, Qt::Key_N), Answer::kNo);
  EXPECT_EQ(Press({"Saved", "OVD"}, Qt::Key_Escape), Answer::kOk);
}

TEST(MessageBoxes, TheTextStandsThereAsItIsAndWhole) {
  for (const std::string text : {"<b>Incorrect</b> syntax near 'NEIL'.", "No", kLong}) {
    Press({text, "OVD", MessageIcon::kCritical}, Qt::Key_Return, [&](QMessageBox& box) {
      const auto& label = *box.findChild<QLabel*>("qt_msgbox_label");
      EXPECT_EQ(label.text().toStdString(), text);
      EXPECT_EQ(label.textFormat(), Qt::PlainText);
      const int wide = label.fontMetrics().horizontalAdvance(label.text());
      const int lines = 1 + wide / label.width();
      EXPECT_TRUE(lines == 1 || label.wordWrap()) << wide << " in " << label.width();
      EXPECT_GE(label.height(), lines * label.fontMetrics().height()) << text;
    });
  }
}

}  // namespace
}  // namespace ovindra::desktop
