#include "ZorveApp/Qt/Dibujo/TiposDeLetra.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QStringList>

namespace zorve {

namespace {

QStringList emojiEnColor() {
  QStringList presentes;
  for (auto const* nombre : {"Noto Color Emoji", "Twemoji", "Twitter Color Emoji", "JoyPixels", "Blobmoji"}) {
    auto const familia = QString::fromLatin1(nombre);
    if (QFontDatabase::hasFamily(familia)) presentes << familia;
  }
  return presentes;
}

}  // namespace

void preferirEmojiEnColor() {
  // The toolkit tells standard error of each script that a font lacks.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.text.font.db.info=false"));
  auto const emoji = emojiEnColor();
  if (emoji.isEmpty()) return;
  for (auto const& fuente : {QGuiApplication::font(), QFontDatabase::systemFont(QFontDatabase::FixedFont)}) {
    QFont::insertSubstitutions(fuente.family(), QStringList{QFontInfo{fuente}.family()} + emoji);
  }
}

}  // namespace zorve
