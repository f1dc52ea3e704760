#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QPointer>

// A list of the back end's objects as the screens list rows: one role,
// "modelData", that holds the object, so a delegate reads modelData.name as
// it would from a plain list. `count` (also `length`) and get(i) serve
// scripts. The objects belong to whoever filled the list; one that is
// destroyed reads as null.
class ObjectListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int length READ count NOTIFY countChanged)

public:
    enum Roles { ObjectRole = Qt::UserRole + 1 };

    explicit ObjectListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = ObjectRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return m_objects.size(); }
    Q_INVOKABLE QObject *get(int row) const;

    // The rows become `objects`, in order.
    template <class T>
    void reset(const QList<T *> &objects)
    {
        beginResetModel();
        m_objects.clear();
        for (T *o : objects)
            m_objects.append(o);
        endResetModel();
        emit countChanged();
    }
    void append(QObject *object);

signals:
    void countChanged();

private:
    QList<QPointer<QObject>> m_objects;
};
