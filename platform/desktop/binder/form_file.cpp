#include "platform/desktop/binder/form_file.h"

#include <QBuffer>
#include <QFile>
#include <QListView>
#include <QTabBar>
#include <QUiLoader>

#include "platform/desktop/binder/form_panel.h"
#include "platform/desktop/binder/grid_view.h"
#include "platform/desktop/binder/sheet_view.h"
#include "platform/desktop/binder/text.h"
#include "platform/desktop/windows/backdrop_area.h"
#include "platform/desktop/windows/login_picture.h"
#include "platform/desktop/windows/splash_picture.h"

// Qt's macro may not stand in a namespace; without it the linker drops the resource of a static library.
static void InitFormsResource() {
  Q_INIT_RESOURCE(forms);
}

namespace ovindra::desktop {
namespace {

/// A list that wishes for a few rows, so that two pairs of them fit a form; the toolkit's wishes for more.
class ListView : public QListView {
 public:
  using QListView::QListView;

  QSize sizeHint() const override { return {200, 132}; }
};

/// Knows the program's own widgets besides Qt's, and the tab bar, which Qt's loader leaves out.
class FormLoader : public QUiLoader {
 public:
  FormLoader() { clearPluginPaths(); }

  QWidget* createWidget(const QString& class_name, QWidget* parent, const QString& name) override {
    QWidget* widget = nullptr;
    if (parent == nullptr && class_name == "QWidget") widget = new FormPanel;
    if (class_name == "QTableView") widget = new GridView(parent);
    if (class_name == "QListView") widget = new ListView(parent);
    if (class_name == "QTabBar") widget = new QTabBar(parent);
    if (class_name == "SheetView") widget = new SheetView(parent);
    if (class_name == "BackdropArea") widget = new BackdropArea(parent);
    if (class_name == "SplashPicture") widget = new SplashPicture(parent);
    if (class_name == "LoginPicture") widget = new LoginPicture(parent);
    if (widget == nullptr) return QUiLoader::createWidget(class_name, parent, name);
    widget->setObjectName(name);
    return widget;
  }
};

}  // namespace

QByteArray ReadFormFile(const QString& form_name) {
  InitFormsResource();
  QFile file(":/ovindra/forms/" + form_name + ".ui");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QWidget* LoadFormFile(const QString& form_name) {
  QByteArray text = ReadFormFile(form_name);
  if (text.isEmpty()) return nullptr;
  QBuffer buffer(&text);
  buffer.open(QIODevice::ReadOnly);
  static FormLoader loader;
  return loader.load(&buffer);
}

QString WidgetName(const Control& control) {
  const QString name = ToQt(control.name());
  return control.index() ? name + "_" + QString::number(*control.index()) : name;
}

QHash<QString, QWidget*> ControlWidgets(const QWidget& loaded) {
  QHash<QString, QWidget*> named;
  for (QWidget* widget : loaded.findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    // The buttons by which a tab bar scrolls have names without the toolkit's mark.
    const bool is_part = name.startsWith("qt_") || qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
    if (name.isEmpty() || name.startsWith("look_") || is_part) continue;
    named.insert(name, widget);
  }
  return named;
}

}  // namespace ovindra::desktop
