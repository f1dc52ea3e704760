#include "system/languageselector.h"

#include <QCoreApplication>
#include <QSqlQuery>
#include <QVariant>
#include <QTranslator>

namespace {

// A text shown through qsTr(variable) is looked up in the context of the
// page that shows it; the option lists keep their texts in the one context
// of the list vocabulary, which is asked when the page's own has nothing.
class ScreenTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;
    QString translate(const char *context, const char *sourceText, const char *disambiguation, int n) const override
    {
        QString text = QTranslator::translate(context, sourceText, disambiguation, n);
        if (text.isEmpty())
            text = QTranslator::translate("TranslationListElements", sourceText, disambiguation, n);
        return text;
    }
};

} // namespace

const LanguageSelector::Language LanguageSelector::languages[LanguageCount] = {
    {"English", "English", "en_GB"},
    {"Français", "French", "fr_FR"},
    {"Deutsch", "Deutsch", "de_DE"},
    {"Italiano", "Italian", "it_IT"},
    {"Español", "Spanish", "es_ES"},
    {"中文", "Chinese", "zh_CN"},
    {"Português", "Portuguese", "pt_PT"},
    {"日本語", "Japanese", "ja_JP"},
    {"한국어", "Korean", "ko_KR"},
    {"русский", "Russian", "ru_RU"},
};

LanguageSelector::LanguageSelector(QObject *parent)
    : QObject(parent)
{
    QSqlQuery query;
    if (query.exec(QStringLiteral("Select language from setupTable")) && query.next())
        updateLanguage(query.value(0).toString());
}

QString LanguageSelector::fileStem(const QString &storedName)
{
    for (const Language &l : languages) {
        if (storedName == QString::fromUtf8(l.storedName))
            return QString::fromUtf8(l.fileStem);
    }
    return storedName;
}

QString LanguageSelector::keyboardLocale(const QString &storedName) const
{
    for (const Language &l : languages) {
        if (storedName == QString::fromUtf8(l.storedName))
            return QString::fromLatin1(l.keyboardLocale);
    }
    return QString();
}

void LanguageSelector::updateLanguage(const QString &language)
{
    m_language = language;
    if (!m_translator)
        m_translator = new ScreenTranslator(this);
    // A failed load empties the translator: the source texts show.
    m_translator->load(fileStem(language), QStringLiteral(":/"), QString(), QStringLiteral(".qm"));
    QCoreApplication::installTranslator(m_translator);
    emit translatedTextChanged();
}
