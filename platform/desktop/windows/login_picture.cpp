#include "platform/desktop/windows/login_picture.h"

#include <QLabel>
#include <QPainter>

#include "platform/desktop/art/login_panel.h"

namespace ovindra::desktop {
namespace {

constexpr auto kInstitute = "Lanvik Eye Institute";

}  // namespace

LoginPicture::LoginPicture(QWidget* parent) : QWidget(parent) {
  setFixedWidth(art::kLoginPanelSize.width());
  setMinimumHeight(art::kLoginPanelSize.height());
}

void LoginPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  art::PaintLoginPanel(painter, rect(), kInstitute);
}

void LoginPicture::showEvent(QShowEvent* event) {
  for (QLabel* key : findChildren<QLabel*>()) key->setGeometry(art::kLoginKey);
  QWidget::showEvent(event);
}

}  // namespace ovindra::desktop
