#include "desk.h"

#include <QApplication>
#include <QTest>

#include "platform/desktop/binder/binding.h"
#include "platform/desktop/theme/theme.h"

static void InitTestForms() {
  Q_INIT_RESOURCE(test_forms);
}

namespace ovindra::desktop {
namespace {

Machine WithBox(MessageBox& box, Machine& of) {
  return {box,           of.pointer,        of.dialogs, of.clock,       of.program_folder,
          of.calculator, of.workbook_files, of.printer, of.spreadsheet, of.word_processor};
}

}  // namespace

void UseOffscreenApplication() {
  static int count = 1;
  static char name[] = "test";
  static char* arguments[] = {name, nullptr};
  if (QApplication::instance() != nullptr) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  InitTestForms();
  auto* application = new QApplication(count, arguments);
  theme::Apply(*application, theme::Mode::Light);
}

frmdesk::frmdesk(Module1& module) : Form(module.machine, "frmdesk", "Desk") {
  DTPicker1.SetValue(Date(std::chrono::year(2016), std::chrono::May, std::chrono::day(31)));
  MonthView1.SetValue(DTPicker1.value());
  for (const char* entry : {"BARIYARPUR", "MOTIPUR", "MUSAHRI", "SARAIYA"}) Combo1.AddItem(entry);
  for (const char* entry : {"0.00", "-0.25"}) Combo2.AddItem(entry);
  for (const char* entry : {"MEDICINE", "SPECTACLE"}) List1.AddItem(entry);
  MSFlexGrid1.SetRows(1);
  for (const char* row : {"2\tRAM\tM", "11\tASHA\tF"}) MSFlexGrid1.AddItem(row);
}

Answer LookedAtBox::Show(const Message& message) {
  before();
  texts.push_back(message.text);
  if (look) look();
  return Answer::kOk;
}

Desk::Desk()
    : desktop_((UseOffscreenApplication(), office_.services()), ViewSettings{"", Timers::kStandStill}),
      machine_(WithBox(box_, desktop_.machine())),
      program_(machine_, sources_, {EntryFor<frmdesk>("frmdesk")}) {
  box_.before = [this] { desktop_.ShowChanges(); };
  desktop_.Follow(&program_);
  program_.Observe(&desktop_);
  program_.Perform([this] { program_.Show("frmdesk"); });
  form_ = dynamic_cast<frmdesk*>(program_.OpenForm("frmdesk"));
  QApplication::setActiveWindow(window()->window());
  QApplication::processEvents();
}

Desk::~Desk() {
  program_.Observe(nullptr);
  desktop_.Follow(nullptr);
}

QWidget& Desk::WidgetOf(Control& control) {
  return window()->view().BindingOf(control)->widget();
}

void Desk::Click(Control& control) {
  QTest::mouseClick(&WidgetOf(control), Qt::LeftButton);
}

void Desk::Key(int key, Qt::KeyboardModifiers modifiers) {
  QWidget* popup = QApplication::activePopupWidget();
  QWidget* target = popup == nullptr ? QApplication::focusWidget() : popup->focusWidget();
  QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
}

void Desk::Type(const QString& text) {
  for (const QChar character : text)
    Key(character.toUpper().unicode(), character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
}

bool Desk::IsFocused(Control& control) {
  return form_->focused() == &control &&
         QApplication::focusWidget() == &window()->view().BindingOf(control)->focus_widget();
}

}  // namespace ovindra::desktop
