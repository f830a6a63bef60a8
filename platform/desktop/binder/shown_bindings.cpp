#include "platform/desktop/binder/shown_bindings.h"

#include <QGroupBox>
#include <QImageReader>
#include <QPixmap>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

constexpr Twips kTwipsInPixel = 15;

QColor ToQt(Colour colour) {
  return {Red(colour), Green(colour), Blue(colour)};
}

/// The largest picture of the file, which may hold several.
QPixmap Load(const QString& file) {
  QImageReader reader(file);
  QImage largest;
  for (int at = 0; at < qMax(1, reader.imageCount()); ++at) {
    reader.jumpToImage(at);
    const QImage image = reader.read();
    if (image.width() > largest.width()) largest = image;
  }
  return QPixmap::fromImage(largest);
}

}  // namespace

void FrameBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  auto* group = qobject_cast<QGroupBox*>(&widget());
  if (group != nullptr && Has(aspects, Aspect::kCaption)) group->setTitle(desktop::ToQt(control().caption()));
}

LabelBinding::LabelBinding(FormView& view, Label& label, QLabel& shown)
    : WidgetBinding(view, label, shown), label_(label), shown_(shown) {
  shown.setTextFormat(Qt::PlainText);
}

void LabelBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  if (Has(aspects, Aspect::kCaption)) {
    shown_.setText(desktop::ToQt(label_.caption()));
    // Black is the colour of one who has chosen none: the theme's.
    if (label_.fore_colour() != 0) {
      QPalette palette = shown_.palette();
      palette.setColor(QPalette::WindowText, ToQt(label_.fore_colour()));
      shown_.setPalette(palette);
    }
  }
  if (Has(aspects, Aspect::kPlace) && label_.left() != 0) {
    shown_.move(label_.left() / kTwipsInPixel, shown_.y());
  }
}

PictureBinding::PictureBinding(FormView& view, PictureBox& box, QLabel& shown)
    : WidgetBinding(view, box, shown), box_(box), shown_(shown) {
  shown.setScaledContents(true);
}

void PictureBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  const QString file = desktop::ToQt(box_.picture());
  if (file == loaded_) return;
  loaded_ = file;
  QString path = file;
  shown_.setProperty("picture", file);
  shown_.setPixmap(Load(view().settings().pictures + path.replace('\\', '/')));
}

AnimationBinding::AnimationBinding(FormView& view, Animation& animation, QProgressBar& bar)
    : WidgetBinding(view, animation, bar), animation_(animation), bar_(bar) {
  bar.setTextVisible(false);
}

void AnimationBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  // A bar without a range runs to and fro.
  bar_.setRange(0, animation_.is_playing() ? 0 : 1);
  bar_.setValue(0);
}

TimerBinding::TimerBinding(FormView& view, Timer& timer) : Binding(view, timer), timer_(timer) {
  connect(&clock_, &QTimer::timeout, this, [this] {
    if (!Act([this] { timer_.Tick(); })) clock_.stop();
  });
}

void TimerBinding::Show(Aspects /*aspects*/) {
  const bool runs = view().settings().timers == Timers::kRun && timer_.enabled() && timer_.interval_ms() > 0;
  if (!runs) {
    clock_.stop();
  } else if (!clock_.isActive() || clock_.interval() != timer_.interval_ms()) {
    clock_.start(timer_.interval_ms());
  }
}

}  // namespace ovindra::desktop
