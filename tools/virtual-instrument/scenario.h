#pragma once

#include "virtualslave.h"

#include <QByteArray>
#include <QString>

#include <memory>

// A scenario file (JSON): the slave's settings and the beaker. Every field
// is optional; a field of the wrong kind or out of range is an error.
struct Scenario {
    VirtualSlave::Config config;
    std::unique_ptr<Beaker> beaker;

    static bool parse(const QByteArray &json, Scenario *out, QString *error);
    static bool load(const QString &fileName, Scenario *out, QString *error);
};
