#include "models/objectlistmodel.h"

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
    return row >= 0 && row < m_objects.size() ? m_objects.at(row).data() : nullptr;
}

void ObjectListModel::append(QObject *object)
{
    const int row = m_objects.size();
    beginInsertRows(QModelIndex(), row, row);
    m_objects.append(object);
    endInsertRows();
    emit countChanged();
}
