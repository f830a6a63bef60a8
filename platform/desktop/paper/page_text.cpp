#include "platform/desktop/paper/page_text.h"

#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

QString Filled(QChar code, const PageFacts& facts) {
  switch (code.toUpper().unicode()) {
    case u'P':
      return QString::number(facts.page);
    case u'N':
      return QString::number(facts.pages);
    case u'A':
      return facts.sheet;
    case u'D':
      return facts.date;
    case u'T':
      return facts.time;
    case u'&':
      return "&";
    default:
      return {};
  }
}

}  // namespace

PageText ReadPageText(std::string_view codes, const PageFacts& facts) {
  PageText text;
  QString* part = &text.centre;
  const QString read = ToQt(codes);
  for (qsizetype i = 0; i < read.size(); ++i) {
    if (read[i] != u'&') {
      *part += read[i];
      continue;
    }
    if (++i == read.size()) break;
    const QChar code = read[i].toUpper();
    if (code == u'L') {
      part = &text.left;
    } else if (code == u'C') {
      part = &text.centre;
    } else if (code == u'R') {
      part = &text.right;
    } else {
      *part += Filled(code, facts);
    }
  }
  return text;
}

}  // namespace ovindra::desktop
