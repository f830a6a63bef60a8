#include "platform/desktop/windows/splash_picture.h"

#include <QLabel>
#include <QPainter>

#include "platform/desktop/art/splash.h"

namespace ovindra::desktop {
namespace {

struct LabelPlace {
  const char* name;
  QRect rect;
  int pixels;
  QFont::Weight weight;
  QColor colour;
};
const LabelPlace kPlaces[] = {
    {"title", art::kSplashTitle, art::kSplashTitlePixels, QFont::Bold, Qt::white},
    {"institute", art::kSplashInstitute, art::kSplashInstitutePixels, QFont::Bold, Qt::white},
    {"version", art::kSplashVersion, art::kSplashSmallPixels, QFont::Normal, art::kSplashPale},
    {"credit", art::kSplashCredit, art::kSplashSmallPixels, QFont::Normal, art::kSplashPale},
};

void Put(QLabel& label, const LabelPlace& place) {
  QFont font = label.font();
  font.setPixelSize(place.pixels);
  font.setWeight(place.weight);
  label.setFont(font);
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, place.colour);
  label.setPalette(palette);
  // The credit line is on its way already.
  QRect rect = place.rect.translated(label.x(), 0);
  const int lacking = label.sizeHint().height() - rect.height();
  if (lacking > 0) rect.adjust(0, -lacking / 2, 0, lacking - lacking / 2);
  label.setGeometry(rect);
  label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

}  // namespace

SplashPicture::SplashPicture(QWidget* parent) : QWidget(parent) {
  setFixedSize(art::kSplashSize);
}

void SplashPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  art::PaintSplash(painter, art::SplashTitle::LeftToLabel);
}

void SplashPicture::showEvent(QShowEvent* event) {
  for (QLabel* label : findChildren<QLabel*>()) {
    for (const LabelPlace& place : kPlaces) {
      if (label->property("place").toString() == place.name) Put(*label, place);
    }
  }
  QWidget::showEvent(event);
}

}  // namespace ovindra::desktop
