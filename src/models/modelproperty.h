#pragma once

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
