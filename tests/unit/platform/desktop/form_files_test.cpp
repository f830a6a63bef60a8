// Every form of the program against its file.
#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollBar>
#include <QTableView>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include "app/forms.h"
#include "base/controls/grid.h"
#include "base/controls/text_box.h"
#include "desk.h"
#include "platform/desktop/binder/form_file.h"
#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

// What a screen of 1366x768 leaves to a form.
constexpr QSize kRoom(1348, 615);

class FormFiles : public testing::TestWithParam<std::string> {
 protected:
  struct NoSources : DataSources {
    std::unique_ptr<Session> Connect(std::string_view) override { return nullptr; }
  };

  FormFiles()
      : desktop_((UseOffscreenApplication(), office_.services()), ViewSettings{"", Timers::kStandStill}) {
    for (const FormEntry& entry : AllForms()) {
      if (entry.name == GetParam()) form_ = entry.make(program_.module());
    }
    view_ = std::make_unique<FormView>(
        *form_, [](const auto& action) { action(); }, ViewSettings{"", Timers::kStandStill});
    view_->Build();
    view_->ShowChanges();
  }

  NoOffice office_;
  Desktop desktop_;
  NoSources sources_;
  Program program_{desktop_.machine(), sources_, AllForms()};
  std::unique_ptr<Form> form_;
  std::unique_ptr<FormView> view_;
};

QStringList TabStops(const QByteArray& file) {
  QStringList names;
  for (QXmlStreamReader reader(file); !reader.atEnd(); reader.readNext()) {
    if (reader.isStartElement() && reader.name() == u"tabstop") names.push_back(reader.readElementText());
  }
  return names;
}

TEST_P(FormFiles, ControlsAndWidgetsAreTheSame) {
  EXPECT_EQ(view_->untied().join(' ').toStdString(), "");
}

TEST_P(FormFiles, TheTabOrderIsThatOfTheControls) {
  QStringList order;
  for (const Control* control : form_->controls()) {
    if (control->TakesFocus()) order.push_back(WidgetName(*control));
  }
  EXPECT_EQ(TabStops(ReadFormFile(ToQt(GetParam()))).join(' ').toStdString(), order.join(' ').toStdString());
}

TEST_P(FormFiles, TheFileHoldsNoStateAndNoStyle) {
  const QString file = QString::fromUtf8(ReadFormFile(ToQt(GetParam())));
  for (const char* word : {"name=\"geometry\"", "styleSheet", "<connection", "name=\"enabled\"",
                           "name=\"visible\"", "name=\"checked\""}) {
    EXPECT_FALSE(file.contains(word)) << word;
  }
}

TEST_P(FormFiles, WhatIsHiddenShowsTheCharacterOfItsBox) {
  for (Control* control : form_->controls()) {
    auto* box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || !box->password_character()) continue;
    box->SetText("abc");
    view_->ShowChanges();
    const auto* line = view_->root()->findChild<QLineEdit*>(WidgetName(*box));
    EXPECT_EQ(line->displayText().toStdString(), std::string(3, *box->password_character()));
  }
}

TEST_P(FormFiles, ItFitsTheSmallestScreenAndNothingIsCut) {
  QWidget& root = *view_->root();
  root.show();
  root.resize(root.sizeHint());
  QApplication::processEvents();
  if (qobject_cast<QMainWindow*>(&root) == nullptr) {
    EXPECT_LE(root.sizeHint().width(), kRoom.width());
    EXPECT_LE(root.sizeHint().height(), kRoom.height());
  }
  for (const QWidget* widget : root.findChildren<QWidget*>()) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    const bool has_text = (label != nullptr && !label->wordWrap() && label->pixmap().isNull()) ||
                          qobject_cast<const QAbstractButton*>(widget) != nullptr;
    // The toolkit's own parts size themselves.
    if (!has_text || !widget->isVisible() || widget->objectName().startsWith("qt_")) continue;
    const std::string which = (widget->objectName() + (label == nullptr ? "" : label->text())).toStdString();
    EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << which;
    EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << which;
  }
}

class StrengthEntry : public FormFiles {};

TEST_P(StrengthEntry, TheTotalsStandUnderTheirColumns) {
  auto& classes = dynamic_cast<Grid&>(*form_->Find("MSFlexGrid1"));
  constexpr int kMoreThanFit = 20;
  for (int row = 0; row < kMoreThanFit; ++row) classes.AddItem("LKG\t120\t115\t235");
  view_->root()->resize(view_->root()->sizeHint());
  view_->root()->show();
  view_->ShowChanges();
  QApplication::processEvents();
  auto& grid = *view_->root()->findChild<QTableView*>("MSFlexGrid1");
  ASSERT_TRUE(grid.verticalScrollBar()->isVisible());
  int column = 1;
  for (const char* name : {"Text6", "Text5", "Text4"}) {
    const QWidget& total = *view_->root()->findChild<QWidget*>(name);
    const int right = grid.viewport()->mapTo(view_->root(), QPoint()).x() +
                      grid.columnViewportPosition(column) + grid.columnWidth(column);
    EXPECT_EQ(total.mapTo(view_->root(), QPoint(total.width(), 0)).x(), right) << name;
    EXPECT_LT(total.width(), grid.columnWidth(column)) << name;
    ++column;
  }
}

INSTANTIATE_TEST_SUITE_P(One, StrengthEntry, testing::Values("frmNew"));

std::vector<std::string> FormNames() {
  std::vector<std::string> names;
  for (const FormEntry& entry : AllForms()) names.emplace_back(entry.name);
  return names;
}

INSTANTIATE_TEST_SUITE_P(All, FormFiles, testing::ValuesIn(FormNames()),
                         [](const auto& form) { return form.param; });

}  // namespace
}  // namespace ovindra::desktop
