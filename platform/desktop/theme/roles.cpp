#include "platform/desktop/theme/roles.h"

#include <QStyle>

namespace ovindra::theme::role {

void Set(QWidget& widget, const char* name, const QVariant& value) {
  if (widget.property(name) == value) return;
  widget.setProperty(name, value);
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
  widget.update();
}

}  // namespace ovindra::theme::role
