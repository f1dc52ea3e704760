#include "models/setupmodel.h"
#include "system/languageselector.h"
#include "testdatabase.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QSqlQuery>
#include <gtest/gtest.h>

// The ten languages by the names the settings keep, their translation files
// (built into the resources by the build) and keyboard layouts.

namespace {

QString tr(const char *context, const char *source)
{
    return QCoreApplication::translate(context, source);
}

TEST(LanguageSelector, StoredNamesGiveFilesAndKeyboards)
{
    const struct { const char *name; const char *stem; const char *keyboard; } rows[] = {
        {"English", "English", "en_GB"},   {"Français", "French", "fr_FR"},  {"Deutsch", "Deutsch", "de_DE"},
        {"Italiano", "Italian", "it_IT"},  {"Español", "Spanish", "es_ES"},  {"中文", "Chinese", "zh_CN"},
        {"Português", "Portuguese", "pt_PT"}, {"日本語", "Japanese", "ja_JP"}, {"한국어", "Korean", "ko_KR"},
        {"русский", "Russian", "ru_RU"},
        // the case counts: a name not in the table is its own stem, and has no keyboard
        {"français", "français", ""},      {"Русский", "Русский", ""},       {"", "", ""},
    };
    LanguageSelector ls;
    for (const auto &r : rows) {
        EXPECT_EQ(LanguageSelector::fileStem(QString::fromUtf8(r.name)), QString::fromUtf8(r.stem)) << r.name;
        EXPECT_EQ(ls.keyboardLocale(QString::fromUtf8(r.name)), QString::fromLatin1(r.keyboard)) << r.name;
    }
}

// Every change, to a file that exists or not, refreshes the texts; a name
// whose file is missing leaves the source texts.
TEST(LanguageSelector, EachChangeRetranslatesAndBackAgain)
{
    const struct { const char *name; const char *title; const char *option; } rows[] = {
        {"Français", "Choisir la langue", "Poids variable"},
        {"русский", "Выберите язык", "Переменная масса"},
        {"한국어", "언어 선택", "가변 무게"},
        {"Deutsch", "Sprache wählen", "Variables Gewicht"},
        {"English", "Select Language", "Variable Weight"},
        {"english", "Select Language", "Variable Weight"},
        {"中文", "选择语言", "可变重量"},
    };
    LanguageSelector ls;
    QSignalSpy refreshed(&ls, &LanguageSelector::translatedTextChanged);
    int changes = 0;
    for (const auto &r : rows) {
        ls.updateLanguage(QString::fromUtf8(r.name));
        EXPECT_EQ(refreshed.count(), ++changes) << r.name;
        EXPECT_EQ(tr("Setup02", "Select Language"), QString::fromUtf8(r.title)) << r.name;
        // An option shown through qsTr(variable) on a page is found in the
        // context of the option lists.
        EXPECT_EQ(tr("Titration06", "Variable Weight"), QString::fromUtf8(r.option)) << r.name;
    }
}

TEST(LanguageSelector, EnglishIsATranslationToo)
{
    LanguageSelector ls;
    ls.updateLanguage(QStringLiteral("English"));
    EXPECT_EQ(tr("TranslationListElements", "Cadmium (Cd2+)"), QStringLiteral("Cadmium (Cd+2)"));
}

TEST(LanguageSelector, StartsInTheLanguageOfTheSettings)
{
    TestDatabase db;
    {
        SetupModel setup; // writes the row of a first start
        setup.setLanguage(QStringLiteral("Deutsch"));
        ASSERT_TRUE(setup.setSetupValues());
    }
    LanguageSelector ls;
    EXPECT_EQ(ls.language(), QStringLiteral("Deutsch"));
    EXPECT_EQ(tr("Setup02", "Select Language"), QStringLiteral("Sprache wählen"));
}

} // namespace
