#include "platform/desktop/theme/icons.h"

#include "platform/desktop/art/painted_icon.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::theme {

QIcon GlyphIcon(art::Glyph glyph) {
  return art::PaintedIcon([glyph](QPainter& painter, const QRectF& rect, QIcon::Mode mode) {
    const Tokens& tokens = Current();
    art::DrawGlyph(painter, glyph, rect, mode == QIcon::Disabled ? tokens.dis_text : tokens.heading);
  });
}

QIcon MessageIcon(art::MessageSign sign) {
  return art::PaintedIcon([sign](QPainter& painter, const QRectF& rect, QIcon::Mode /*mode*/) {
    const Tokens& tokens = Current();
    const QColor ink = sign == art::MessageSign::Critical      ? tokens.err
                       : sign == art::MessageSign::Exclamation ? tokens.warn
                                                               : tokens.heading;
    art::DrawMessageSign(painter, sign, rect, ink, tokens.header);
  });
}

}  // namespace ovindra::theme
