#pragma once

#include <QDebug>
#include <QList>
#include <QObject>
#include <QString>

// A plain column property of a model: getter, setter that stores the value
// and emits valueChanged() when it differs, and the member. Properties whose
// setters do more are written out by hand.
#define KESTRUM_MODEL_PROPERTY(Type, name, Setter)                                                                   \
    Q_PROPERTY(Type name READ name WRITE Setter NOTIFY valueChanged)                                                 \
public:                                                                                                              \
    Type name() const { return m_##name; }                                                                           \
    void Setter(const Type &value)                                                                                   \
    {                                                                                                                \
        if (m_##name == value)                                                                                       \
            return;                                                                                                  \
        m_##name = value;                                                                                            \
        emit valueChanged();                                                                                         \
    }                                                                                                                \
                                                                                                                     \
private:                                                                                                             \
    Type m_##name{};

// As KESTRUM_MODEL_PROPERTY, and the setter logs the value after `label`
// ("ΔE = 15").
#define KESTRUM_LOGGED_PROPERTY(Type, name, Setter, label)                                                           \
    Q_PROPERTY(Type name READ name WRITE Setter NOTIFY valueChanged)                                                 \
public:                                                                                                              \
    Type name() const { return m_##name; }                                                                           \
    void Setter(const Type &value)                                                                                   \
    {                                                                                                                \
        qDebug().noquote() << QString::fromUtf8(label) << value;                                                     \
        if (m_##name == value)                                                                                       \
            return;                                                                                                  \
        m_##name = value;                                                                                            \
        emit valueChanged();                                                                                         \
    }                                                                                                                \
                                                                                                                     \
private:                                                                                                             \
    Type m_##name{};

// A property whose setter emits a signal of its own name.
#define KESTRUM_NOTIFY_PROPERTY(Type, name, Setter, Notify)                                                          \
    Q_PROPERTY(Type name READ name WRITE Setter NOTIFY Notify)                                                       \
public:                                                                                                              \
    Type name() const { return m_##name; }                                                                           \
    void Setter(const Type &value)                                                                                   \
    {                                                                                                                \
        m_##name = value;                                                                                            \
        emit Notify();                                                                                               \
    }                                                                                                                \
                                                                                                                     \
private:                                                                                                             \
    Type m_##name{};

// A property whose setter only stores the value and tells no one.
#define KESTRUM_QUIET_PROPERTY(Type, name, Setter)                                                                   \
    Q_PROPERTY(Type name READ name WRITE Setter)                                                                     \
public:                                                                                                              \
    Type name() const { return m_##name; }                                                                           \
    void Setter(const Type &value) { m_##name = value; }                                                             \
                                                                                                                     \
private:                                                                                                             \
    Type m_##name{};

// Releases objects that the screens may still hold: each goes once control
// is back in the event loop, after the bindings moved to the new ones.
template <typename T>
void releaseLater(QList<T *> &objects)
{
    for (T *o : objects)
        o->deleteLater();
    objects.clear();
}
