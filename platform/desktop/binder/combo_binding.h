// A combo box tied to one of the toolkit. A drop-down list opens when letters are typed, at the first entry
// that begins with all of them; only Enter, Tab or the mouse pick. Picking the entry that is chosen already
// is a pick too. The wheel changes nothing.
#pragma once

#include <QComboBox>
#include <QString>
#include <optional>

#include "base/controls/combo_box.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/items_model.h"
#include "platform/desktop/binder/typed_text.h"

namespace ovindra::desktop {

class ComboBinding : public WidgetBinding {
 public:
  ComboBinding(FormView& view, ComboBox& combo, QComboBox& box);

  void Show(Aspects aspects) override;
  void FocusArrived() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool KeyPressed(QKeyEvent& event) override;
  void MousePressed() override { WatchPopup(); }

 private:
  void MakeTypable();
  bool KeyInPopup(QKeyEvent& event);
  bool KeyOnClosedList(QKeyEvent& event);
  void OpenPopup();
  void WatchPopup();
  void Search(const QString& text);
  void PickAndMoveOn();
  bool IsOpen() const;

  ComboBox& combo_;
  QComboBox& box_;
  ItemsModel items_;
  std::optional<TypedText> typed_;
  bool is_popup_watched_ = false;
  QString searched_;
};

}  // namespace ovindra::desktop
