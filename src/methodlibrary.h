#pragma once

#include "models/objectlistmodel.h"

#include <QList>
#include <QVariantMap>
#include <QObject>

#include <functional>

class MethodModel;
class SetupModel;
class StandardisationLogModel;
class TitrationLogModel;

// The method library as the screens see it: the current method (the one
// the settings row names, with its electrode, titrant and titration parts
// and its run) and the list of stored methods, newest first, as a view model.
class MethodLibrary : public QObject
{
    Q_OBJECT
public:
    explicit MethodLibrary(QObject *parent = nullptr);
    // The settings row that names the current method.
    void setSetup(SetupModel *setup) { m_setup = setup; }

    MethodModel *current() const { return m_current; }
    ObjectListModel *view() const { return m_view; }
    const QList<MethodModel *> &methods() const { return m_methods; }
    int count() const { return m_methods.size(); }
    int currentMethodId() const;

    // The stored methods, read anew; the entries they replace go once the
    // screens have moved to the new ones.
    void loadList();
    // Makes the method last changed the current one in the settings.
    void selectLastUpdated();
    // Loads a method as the current one and tells the screens.
    void reload(int id);
    // A log model of the screens saves the current method's run.
    void attach(TitrationLogModel *log, std::function<bool(int)> standardised);
    void attach(StandardisationLogModel *log);

    // Why a save of the current method as a new method was refused.
    static const QString duplicateName;
    static const QString libraryFull;
    static const QString databaseError;
    // Saves the current method under a new name: "" when it is stored, else
    // one of the reasons above, with nothing written.
    Q_INVOKABLE QString saveCurrent(const QString &name, const QString &password);
    // Whether a stored method (the working method included) has this name.
    static bool nameTaken(const QString &name);
    // A stored method's values as the method report reads them, by column
    // name: "method", "electrode", "titrant", "titration" (empty maps for a
    // method that isn't stored). The current method stays as it is.
    Q_INVOKABLE QVariantMap partsOf(int id) const;

signals:
    void changed();

private:
    SetupModel *m_setup = nullptr;
    MethodModel *m_current;
    ObjectListModel *m_view;
    QList<MethodModel *> m_methods;
};
