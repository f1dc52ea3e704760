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
    double e0Mv = 0;
    double slopePct = 100;

    static bool parse(const QByteArray &json, Scenario *out, QString *error);
    static bool load(const QString &fileName, Scenario *out, QString *error);
};
