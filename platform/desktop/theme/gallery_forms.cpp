#include "platform/desktop/theme/gallery_forms.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "platform/desktop/art/key_frames.h"
#include "platform/desktop/art/login_panel.h"
#include "platform/desktop/theme/dressing.h"
#include "platform/desktop/theme/icons.h"
#include "platform/desktop/theme/roles.h"

namespace ovindra::theme {
namespace {

class PanelView : public QWidget {
 public:
  PanelView() {
    setFixedWidth(art::kLoginPanelSize.width());
    auto* key = new QLabel(this);
    key->setGeometry(art::kLoginKey);
    key->setPixmap(art::KeyFrame(1, art::kLoginKey.width(), devicePixelRatioF()));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    art::PaintLoginPanel(painter, rect(), "Lanvik Eye Institute");
  }
};

QPushButton* Button(const QString& text, bool primary = false) {
  auto* button = new QPushButton(text);
  if (primary) role::Set(*button, role::kPrimary);
  return button;
}

QPushButton* IconButton(art::Glyph glyph) {
  auto* button = new QPushButton;
  role::Set(*button, role::kIconOnly);
  button->setIcon(GlyphIcon(glyph));
  return button;
}

QFrame* Hairline() {
  auto* line = new QFrame;
  line->setFrameShape(QFrame::HLine);
  return line;
}

QComboBox* Combo(const QStringList& entries, bool enabled = true) {
  auto* combo = new QComboBox;
  combo->addItems(entries);
  combo->setEnabled(enabled);
  return combo;
}

QLineEdit* Field(const QString& text, int width = 0, bool enabled = true) {
  auto* field = new QLineEdit(text);
  if (width > 0) field->setFixedWidth(width);
  field->setEnabled(enabled);
  return field;
}

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
  auto* row = new QHBoxLayout;
  for (QWidget* widget : widgets) row->addWidget(widget);
  row->addStretch();
  return row;
}

QGroupBox* PlaceGroup() {
  auto* group = new QGroupBox("Screening place");
  auto* form = new QFormLayout(group);
  form->addRow("Programme", Combo({"GRANT 2016"}));
  form->addRow("Type", Combo({"SCHOOL", "HOSPITAL"}));
  form->addRow("District", Combo({"RAMGARH"}, false));
  auto* typed = Combo({"MIDDLE SCHOOL BARLANGA"});
  typed->setEditable(true);
  typed->setObjectName("typed");
  form->addRow("School/Center Name", typed);
  return group;
}

QGroupBox* ChildGroup() {
  auto* group = new QGroupBox("Child");
  auto* form = new QFormLayout(group);
  form->addRow("Child Name", Field("BASANTI KUMARI MURMU"));
  auto* mother = Field("CHHOTU MURM");
  mother->setObjectName("focused");
  form->addRow("F/M Name", mother);
  form->addRow("Age(Y:M:D)", Row({Field("8", 40), Field("", 40), Field("", 40)}));
  auto* male = new QRadioButton("&Male");
  auto* female = new QRadioButton("&Female");
  female->setChecked(true);
  form->addRow("Gender", Row({male, female}));
  auto* yes = new QCheckBox("Wears glasses");
  yes->setChecked(true);
  auto* off = new QCheckBox("Off");
  off->setEnabled(false);
  form->addRow("Check", Row({yes, new QCheckBox("Check1"), off}));
  form->addRow("State", Field("JHARKHAND", 0, false));
  auto* date = new QDateEdit(QDate(2016, 5, 24));
  date->setDisplayFormat("dd/MM/yyyy");
  date->setButtonSymbols(QAbstractSpinBox::NoButtons);
  date->setFixedWidth(104);
  form->addRow("Date", Row({date, IconButton(art::Glyph::Calendar)}));
  auto* from = new QDateEdit(QDate(2016, 4, 1));
  from->setDisplayFormat("dd/MM/yyyy");
  from->setCalendarPopup(true);
  form->addRow("From :", Row({from, new QSpinBox}));
  return group;
}

QTableView* Grid() {
  auto* model = new QStandardItemModel(0, 4, QCoreApplication::instance());
  model->setHorizontalHeaderLabels({"State Code", "State Name", "Country Name", "Age"});
  const QStringList names = {"ASSAM",   "BAGMATI", "BIHAR",     "CHHATTISGARH",  "JHARKHAND",   "KOSHI",
                             "MADHESH", "ODISHA",  "SIKKIM",    "UTTAR PRADESH", "WEST BENGAL", "KERALA",
                             "GOA",     "PUNJAB",  "TELANGANA", "MIZORAM"};
  for (int i = 0; i < names.size(); ++i) {
    auto* code = new QStandardItem(QString::number(i + 1));
    code->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* age = new QStandardItem(QString::number(7 + i % 5));
    age->setTextAlignment(Qt::AlignCenter);
    model->appendRow({code, new QStandardItem(names[i]), new QStandardItem("INDIA"), age});
  }
  model->setHeaderData(0, Qt::Horizontal, int(Qt::AlignRight | Qt::AlignVCenter), Qt::TextAlignmentRole);
  model->setHeaderData(3, Qt::Horizontal, int(Qt::AlignCenter), Qt::TextAlignmentRole);
  auto* grid = new QTableView;
  DressGrid(*grid);
  grid->setModel(model);
  grid->setColumnWidth(0, 96);
  grid->setColumnWidth(1, 190);
  grid->setColumnWidth(2, 150);
  grid->selectRow(4);
  return grid;
}

QHBoxLayout* TwoLists() {
  auto* from = new QListWidget;
  from->addItems({"ANISOMETROPIA", "AMBLYOPIA RE", "AMBLYOPIA LE", "COMPOUND HYPERMETROPIA", "HIGH MYOPIA",
                  "PRESBYOPIA", "CATARACT"});
  from->setCurrentRow(1);
  auto* to = new QListWidget;
  to->addItems({"COMPOUND MYOPIC ASTIGMATISM", "SIMPLE MYOPIA"});
  auto* arrows = new QVBoxLayout;
  arrows->addStretch();
  arrows->addWidget(IconButton(art::Glyph::ChevronRight));
  arrows->addWidget(IconButton(art::Glyph::ChevronLeft));
  arrows->addStretch();
  auto* row = new QHBoxLayout;
  row->addWidget(from);
  row->addLayout(arrows);
  row->addWidget(to);
  return row;
}

QHBoxLayout* Foot() {
  auto* foot = new QHBoxLayout;
  foot->setSpacing(8);
  auto* add = Button("&Add", true);
  add->setEnabled(false);
  foot->addWidget(add);
  foot->addWidget(Button("&Save", true));
  foot->addWidget(Button("Ca&ncel"));
  foot->addSpacing(8);
  foot->addWidget(Button("&View"));
  foot->addStretch();
  foot->addWidget(Button("&Close"));
  return foot;
}

// The form's columns, a hairline and the row of buttons.
void SetOverFoot(QWidget& form, QLayout* columns) {
  auto* all = new QVBoxLayout(&form);
  all->addLayout(columns);
  all->addSpacing(4);
  all->addWidget(Hairline());
  all->addSpacing(4);
  all->addLayout(Foot());
}

}  // namespace

QLabel* Label(const QString& text, const char* what) {
  auto* label = new QLabel(text);
  role::Set(*label, what);
  return label;
}

QWidget* EntryForm() {
  auto* form = new QWidget;
  form->setWindowTitle("Enroll Child");
  auto* entry = new QVBoxLayout;
  entry->setSpacing(8);
  entry->addWidget(PlaceGroup());
  entry->addWidget(ChildGroup());
  entry->addStretch();
  auto* list = new QVBoxLayout;
  list->setSpacing(8);
  auto* tabs = new QTabWidget;
  tabs->addTab(Grid(), "Enrolled");
  tabs->addTab(new QLabel("Nothing"), "Screened");
  list->addWidget(Label("List of Enroll Child On 24/05/2016", role::kHeading));
  list->addWidget(tabs, 3);
  auto* caption = new QHBoxLayout;
  caption->addWidget(new QLabel("Select Diagnosis"));
  caption->addStretch();
  caption->addWidget(Label("Spectacle :- Paid", role::kChip));
  list->addLayout(caption);
  list->addLayout(TwoLists(), 1);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(24);
  columns->addLayout(entry, 2);
  columns->addLayout(list, 4);
  SetOverFoot(*form, columns);
  return form;
}

QWidget* MasterForm() {
  auto* form = new QWidget;
  form->setWindowTitle("STATE MASTER");
  auto* entry = new QGroupBox("State");
  auto* fields = new QFormLayout(entry);
  fields->addRow("State Code", Field("7", 96, false));
  fields->addRow("State Name", Field("JHARKHAND", 0, false));
  fields->addRow("Country Name", Combo({""}, false));
  entry->setFixedWidth(312);
  auto* list = new QGroupBox("List");
  (new QVBoxLayout(list))->addWidget(Grid());
  auto* columns = new QHBoxLayout;
  columns->setSpacing(24);
  columns->addWidget(entry);
  columns->addWidget(list);
  SetOverFoot(*form, columns);
  return form;
}

void AddCards(QWidget& form) {
  auto* calendar = new QCalendarWidget(&form);
  role::Set(*calendar, role::kCard);
  calendar->setSelectedDate(QDate(2016, 5, 24));
  calendar->setGeometry(QRect(QPoint(500, 122), kCalendarSize));
  auto* card = new QFrame(&form);
  role::Set(*card, role::kCard);
  auto* layout = new QVBoxLayout(card);
  layout->addWidget(Label("Select Paid/Free", role::kHeading));
  auto* paid = new QRadioButton("Paid");
  paid->setObjectName("paid");
  paid->setChecked(true);
  layout->addLayout(Row({paid, new QRadioButton("Free")}));
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  buttons->addWidget(Button("&Ok", true));
  buttons->addWidget(Button("Cancel"));
  layout->addLayout(buttons);
  card->setGeometry(736, 388, 250, 122);
  calendar->show();
  card->show();
  paid->setFocus();
}

QDialog* LoginWindow() {
  auto* window = new QDialog;
  window->setWindowTitle("Ovindra Desk");
  auto* fields = new QVBoxLayout;
  fields->setContentsMargins(24, 22, 24, 18);
  fields->setSpacing(4);
  fields->addWidget(Label("Log in", role::kTitle));
  fields->addSpacing(6);
  fields->addWidget(Label("User Name", role::kMuted));
  fields->addWidget(Combo({"MEENA DEVI"}));
  fields->addSpacing(6);
  fields->addWidget(Label("Password", role::kMuted));
  auto* password = Field("secret");
  password->setEchoMode(QLineEdit::Password);
  password->setObjectName("password");
  fields->addWidget(password);
  fields->addStretch();
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  buttons->addWidget(Button("&Ok", true));
  buttons->addWidget(Button("Ca&ncel"));
  fields->addLayout(buttons);
  auto* columns = new QHBoxLayout(window);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(0);
  columns->addWidget(new PanelView);
  columns->addLayout(fields);
  window->setFixedSize(480, 268);
  return window;
}

QWidget* ReportForm() {
  auto* form = new QWidget;
  form->setWindowTitle("Enroll Report");
  auto* bar = new QWidget;
  role::Set(*bar, role::kReportBar);
  auto* selectors = new QHBoxLayout(bar);
  selectors->setContentsMargins(12, 8, 12, 9);
  selectors->setSpacing(8);
  selectors->addWidget(new QLabel("Programme"));
  selectors->addWidget(Combo({"GRANT 2016"}));
  selectors->addWidget(Button("&Get", true));
  selectors->addStretch();
  selectors->addWidget(Button("&Print"));
  selectors->addWidget(Button("&Close"));
  auto* sheet = Grid();
  role::Set(*sheet, role::kEdgeToEdge);
  auto* rows = new QVBoxLayout(form);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(bar);
  rows->addWidget(sheet);
  return form;
}

}  // namespace ovindra::theme
