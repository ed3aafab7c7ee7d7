#include "app/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {
const QString kFolder = QStringLiteral(":/i18n");

// The program's translation files for a language: pelvane_<part>_<language>.qm.
QStringList filesFor(const QString& language) {
    return QDir(kFolder).entryList({QStringLiteral("pelvane_*_%1.qm").arg(language)}, QDir::Files,
                                   QDir::Name);
}

// "de-DE" is tried as de_DE, then as de.
QStringList candidates(const QString& uiLanguage) {
    QString name = uiLanguage;
    name.replace(QLatin1Char('-'), QLatin1Char('_'));
    QStringList out{name};
    // Chinese is translated per script: zh-Hans-CN and zh-CN are zh_CN.
    if (name.startsWith(QLatin1String("zh_")))
        out << (name.contains(QLatin1String("Hant")) || name.endsWith(QLatin1String("_TW")) ||
                        name.endsWith(QLatin1String("_HK"))
                    ? QStringLiteral("zh_TW")
                    : QStringLiteral("zh_CN"));
    while (name.contains(QLatin1Char('_'))) {
        name.truncate(name.lastIndexOf(QLatin1Char('_')));
        out << name;
    }
    return out;
}
} // namespace

namespace Translations {

QString chooseLanguage(const QStringList& uiLanguages) {
    for (const QString& ui : uiLanguages) {
        const QStringList names = candidates(ui);
        // The program's own language ends the search: an English desktop gets English, even
        // when it lists other languages after it.
        if (names.last() == QLatin1String("en") || names.last() == QLatin1String("C"))
            return {};
        for (const QString& name : names)
            if (!filesFor(name).isEmpty())
                return name;
    }
    return {};
}

QString install() {
    const QString language = chooseLanguage(QLocale::system().uiLanguages());
    if (language.isEmpty())
        return {};
    auto* app = QCoreApplication::instance();
    for (const QString& file : filesFor(language)) {
        auto* translator = new QTranslator(app);
        if (translator->load(QDir(kFolder).filePath(file)))
            QCoreApplication::installTranslator(translator);
        else
            delete translator;
    }
    // Qt's own texts: the buttons of message boxes and the file dialogs.
    auto* qt = new QTranslator(app);
    if (qt->load(QStringLiteral("qtbase_") + language,
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
    return language;
}

} // namespace Translations
