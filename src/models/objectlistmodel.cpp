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
    // An object without a parent handed to a script becomes the script
    // engine's, which deletes it at its next garbage collection: the rows
    // stay their filler's.
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
