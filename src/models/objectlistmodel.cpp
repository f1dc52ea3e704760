#include "models/objectlistmodel.h"

#include <QQmlEngine>

ObjectListModel::ObjectListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

int ObjectListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_objects.size();
}

QVariant ObjectListModel::data(const QModelIndex &index, int role) const
{
    if (role != ObjectRole || !index.isValid() || index.row() >= m_objects.size())
        return QVariant();
    return QVariant::fromValue<QObject *>(m_objects.at(index.row()).data());
}

QHash<int, QByteArray> ObjectListModel::roleNames() const
{
    return {{ObjectRole, QByteArrayLiteral("modelData")}};
}

QObject *ObjectListModel::get(int row) const
{
    QObject *object = row >= 0 && row < m_objects.size() ? m_objects.at(row).data() : nullptr;
    // A parentless object that a method hands to a script would become the
    // script engine's, and its collector would delete a row that the list's
    // owner still holds (and deletes again).
    if (object)
        QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    return object;
}

void ObjectListModel::append(QObject *object)
{
    const int row = m_objects.size();
    beginInsertRows(QModelIndex(), row, row);
    m_objects.append(object);
    endInsertRows();
    emit countChanged();
}
