#pragma once

#include <QObject>
#include <QString>

class QTranslator;

// "ls" of the screens: the one translator of the application. Every
// translated binding is written qsTr("text") + ls.translatedText; the
// property is always empty and its notifier makes the bindings run again
// after a change of language.
class LanguageSelector : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString translatedText READ translatedText NOTIFY translatedTextChanged)
public:
    struct Language {
        const char *storedName; // as the settings keep it, in the language itself
        const char *fileStem;   // ":/" + stem + ".qm"
        const char *keyboardLocale;
    };
    static constexpr int LanguageCount = 10;
    static const Language languages[LanguageCount];

    // Takes the language of the settings row, when there is one.
    explicit LanguageSelector(QObject *parent = nullptr);
    QString translatedText() const { return QString(); }

    // The file stem of a stored name; a name not in the table (the case
    // counts) is its own stem.
    static QString fileStem(const QString &storedName);
    // The on-screen keyboard's locale of a stored name, "" when unknown.
    Q_INVOKABLE QString keyboardLocale(const QString &storedName) const;

public slots:
    // Loads ":/" + stem + ".qm" into the translator, installs it and
    // refreshes every translated text. A file that is not there leaves the
    // source texts; the texts are refreshed all the same.
    void updateLanguage(const QString &language);
    QString language() const { return m_language; }

signals:
    void translatedTextChanged();

private:
    QTranslator *m_translator = nullptr;
    QString m_language = QStringLiteral("English");
};
