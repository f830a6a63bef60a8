// The picture of the start-up window: a dark panel with the program's sign, an eye in whose pupil two
// children stand before the sun, four pictures of a children's chart and a strip for the credit line. What
// changes while it is shown (the title's colour, the institute, the version, the moving credit line) is laid
// over it as labels; the rectangles here are the places left free for them, in device-independent pixels of
// the picture.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>
#include <QSize>

namespace ovindra::art {

inline constexpr QSize kSplashSize{620, 344};
/// The title, 36 px bold; its ground is plain, so that white and red both read on it.
inline constexpr QRect kSplashTitle{36, 91, 270, 48};
/// The institute's name, 15 px bold, white.
inline constexpr QRect kSplashInstitute{36, 189, 260, 24};
/// The version, 13 px, in kSplashPale.
inline constexpr QRect kSplashVersion{36, 214, 260, 22};
/// The strip along which the credit line, 13 px in kSplashPale, moves.
inline constexpr QRect kSplashCredit{0, 310, 620, 34};
inline constexpr int kSplashTitlePixels = 36;
inline constexpr int kSplashInstitutePixels = 15;
inline constexpr int kSplashSmallPixels = 13;
inline constexpr QColor kSplashPale{0xA9, 0xC8, 0xCD};

enum class SplashTitle { Painted, LeftToLabel };

/// Paints the picture at the painter's origin, kSplashSize large.
void PaintSplash(QPainter& painter, SplashTitle title);

}  // namespace ovindra::art
