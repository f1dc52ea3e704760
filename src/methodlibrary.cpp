#include "methodlibrary.h"

#include "models/dbutil.h"
#include "models/loglayout.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/modelproperty.h"
#include "models/setupmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationsetupmodel.h"

#include <QDebug>
#include <QSqlQuery>

const QString MethodLibrary::duplicateName = QStringLiteral("duplicateName");
const QString MethodLibrary::libraryFull = QStringLiteral("libraryFull");
const QString MethodLibrary::databaseError = QStringLiteral("databaseError");

MethodLibrary::MethodLibrary(QObject *parent)
    : QObject(parent)
    , m_current(new MethodModel(this))
    , m_view(new ObjectListModel(this))
{
}

int MethodLibrary::currentMethodId() const
{
    return m_setup ? m_setup->currentMethodId() : MethodModel::scratchMethodId;
}

void MethodLibrary::loadList()
{
    QSqlQuery query;
    if (!DbUtil::exec(query, QStringLiteral("SELECT *  FROM methodSetupTable WHERE id != 99999 order  by datetime(mcreatedAt) DESC")))
        return;
    QList<MethodModel *> list;
    while (query.next()) {
        auto *entry = new MethodModel(this, false);
        entry->setId(query.value(QStringLiteral("id")).toInt());
        entry->setMethodName(query.value(QStringLiteral("methodName")).toString());
        entry->setMethodPassword(query.value(QStringLiteral("methodPassword")).toString());
        list.append(entry);
    }
    QList<MethodModel *> old = m_methods;
    m_methods = list;
    m_view->reset(m_methods);
    emit changed();
    releaseLater(old);
}

void MethodLibrary::selectLastUpdated()
{
    QSqlQuery query;
    if (query.exec(QStringLiteral("SELECT *  FROM methodSetupTable order  by datetime(mupdatedAt) DESC limit 1"))
        && query.next() && m_setup)
        m_setup->setCurrentMethodId(query.value(QStringLiteral("id")).toInt());
}

void MethodLibrary::reload(int id)
{
    m_current->updateMethodModel(id);
    loadList();
    emit m_current->valueChanged();
    emit m_current->electrodeSetupModel()->valueChanged();
    emit m_current->titrantSetupModel()->valueChanged();
    emit m_current->titrationSetupModel()->valueChanged();
    emit changed();
}

void MethodLibrary::attach(TitrationLogModel *log, std::function<bool(int)> standardised)
{
    log->setCurrentMethod(m_current);
    log->setStandardizedFetch(std::move(standardised));
}

void MethodLibrary::attach(StandardisationLogModel *log)
{
    log->setCurrentMethod(m_current);
}

bool MethodLibrary::nameTaken(const QString &name)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT 1 FROM methodSetupTable WHERE methodName = :name"));
    query.bindValue(QStringLiteral(":name"), name);
    return DbUtil::exec(query) && query.next();
}

QString MethodLibrary::saveCurrent(const QString &name, const QString &password)
{
    QString refusal;
    if (MethodModel::methodCount() >= MethodModel::maxMethods)
        refusal = libraryFull;
    else if (nameTaken(name))
        refusal = duplicateName;
    if (!refusal.isEmpty()) {
        qDebug() << "MethodLibrary: the method" << name << "was not saved:" << refusal;
        m_current->setSuccess(0);
        return refusal;
    }
    m_current->saveMethodValues(name, password);
    return m_current->success() == 1 ? QString() : databaseError;
}

QVariantMap MethodLibrary::partsOf(int id) const
{
    MethodModel method(nullptr, false);
    QVariantMap parts;
    if (!method.loadMethod(id, QString(), false))
        return parts;
    parts.insert(QStringLiteral("method"), LogLayout::rowOf(&method, MethodModel::columnTable()));
    parts.insert(QStringLiteral("electrode"), LogLayout::rowOf(method.electrodeSetupModel(), ElectrodeSetupModel::columnTable()));
    parts.insert(QStringLiteral("titrant"), LogLayout::rowOf(method.titrantSetupModel(), TitrantSetupModel::columnTable()));
    parts.insert(QStringLiteral("titration"), LogLayout::rowOf(method.titrationSetupModel(), TitrationSetupModel::columnTable()));
    return parts;
}
