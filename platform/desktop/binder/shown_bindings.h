// What only shows something: frames, labels, pictures, the progress animation; and the timer.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QTimer>

#include "base/controls/frame.h"
#include "base/controls/shown.h"
#include "platform/desktop/binder/binding.h"

namespace ovindra::desktop {

/// A frame around other controls. A group box shows its caption.
class FrameBinding : public WidgetBinding {
 public:
  FrameBinding(FormView& view, Frame& frame, QWidget& widget) : WidgetBinding(view, frame, widget) {}

  void Show(Aspects aspects) override;
};

class LabelBinding : public WidgetBinding {
 public:
  LabelBinding(FormView& view, Label& label, QLabel& shown);

  void Show(Aspects aspects) override;

 protected:
  bool IsClickedAsAWhole() const override { return true; }

 private:
  Label& label_;
  QLabel& shown_;
};

/// A picture from a file beside the program.
class PictureBinding : public WidgetBinding {
 public:
  PictureBinding(FormView& view, PictureBox& box, QLabel& shown);

  void Show(Aspects aspects) override;

 protected:
  bool IsClickedAsAWhole() const override { return true; }

 private:
  PictureBox& box_;
  QLabel& shown_;
  QString loaded_;
};

/// The progress animation: a bar that runs while the animation plays.
class AnimationBinding : public WidgetBinding {
 public:
  AnimationBinding(FormView& view, Animation& animation, QProgressBar& bar);

  void Show(Aspects aspects) override;

 private:
  Animation& animation_;
  QProgressBar& bar_;
};

class TimerBinding : public Binding {
 public:
  TimerBinding(FormView& view, Timer& timer);

  void Show(Aspects aspects) override;

 private:
  Timer& timer_;
  QTimer clock_;
};

}  // namespace ovindra::desktop
