#pragma once
// The texts a person reads, in the language of the user's desktop: the program's own
// translations (built in under :/i18n, one file per part of the program) and Qt's for its
// standard dialogs. English, or the C locale, loads nothing: the texts are written in English.
#include <QString>
#include <QStringList>

namespace Translations {
// The language whose translations the program holds, from the user's preferred languages in
// order ("de-DE" finds "de"); empty when the first one the program knows is English, or none is.
QString chooseLanguage(const QStringList& uiLanguages);
// Installs the translations of the desktop's language into the running application (which must
// exist); returns that language, or an empty string when nothing was loaded.
QString install();
} // namespace Translations
