#pragma once

#include <QObject>

// "usbHandler" of the screens: logs the stick's comings and goings.
class UsbHandler : public QObject
{
    Q_OBJECT
public:
    explicit UsbHandler(QObject *parent = nullptr)
        : QObject(parent) {}

public slots:
    void onDevInserted();
    void onDevRemoved();

signals:
    void updateApplicationSoftware();
};
