#include "controller/mspdriver.h"

#include <QDebug>
#include <QIODevice>
#include <QRegularExpression>

#include <cmath>
#include <cstring>

namespace {

const QRegularExpression &wordSeparator()
{
    static const QRegularExpression re(QStringLiteral("\\s+"));
    return re;
}

// A word that does not convert reads as 0, and so does one that is not finite.
float toFloatOrZero(const QString &word)
{
    const float v = word.toFloat();
    return std::isfinite(v) ? v : 0.f;
}

// A word that is a finite number within float's range.
bool finiteFloat(const QString &word, float *out)
{
    bool ok = false;
    const float v = word.toFloat(&ok);
    if (!ok || !std::isfinite(v))
        return false;
    *out = v;
    return true;
}

void copyCut(char *dest, int size, const QString &word)
{
    const QByteArray bytes = word.toLatin1();
    std::memset(dest, 0, size_t(size));
    std::memcpy(dest, bytes.constData(), size_t(qMin(size, bytes.size())));
}

// The built-in table of the software double: seconds and millivolts.
struct SimRow {
    float seconds;
    float millivolts;
};
const SimRow kSimTable[] = {
    {2.5f, 54.313f}, {5.f, 54.208f}, {7.5f, 54.195f}, {7.75f, 54.084f}, {8.f, 50.558f},
    {8.25f, 47.931f}, {8.5f, 44.895f}, {8.75f, 41.8f}, {9.f, 40.f}, {9.25f, 38.2f},
    {9.5f, 37.f}, {9.75f, 35.5f}, {10.f, 32.f}, {10.25f, 33.f}, {10.5f, 33.313f},
    {10.75f, 33.21f}, {11.f, 33.18f},
};
constexpr int kSimRows = int(sizeof(kSimTable) / sizeof(kSimTable[0]));

} // namespace

const mspDriver::Dispatch mspDriver::s_dispatch[7] = {
    {"MG", &mspDriver::parseProbeData},
    {"SYSTEM", &mspDriver::parseVersion},
    {"SSG", &mspDriver::parseStirSpeed},
    {"VG", &mspDriver::parseGetValve},
    {"BSG", &mspDriver::parseGetBuretteSize},
    {"BLG", &mspDriver::parseBacklight},
    {"BBG", &mspDriver::parseGetBuretteBusy},
};

mspDriver::mspDriver(QObject *parent)
    : QObject(parent)
{
}

void mspDriver::setSerialPort(QIODevice *port)
{
    m_port = port;
    if (m_port && m_port->isOpen())
        requestVersion();
}

void mspDriver::sendCommand(const QString &text)
{
    if (m_port && m_port->isOpen()) {
        if (text == QLatin1String("MG")) {
            // At most one poll counts as in flight: a lost reply is not waited for.
            m_probesAnswered = qMax(m_probesAnswered, m_probesSent ? m_probesSent - 1 : 0);
            ++m_probesSent;
        }
        m_port->write(text.toLocal8Bit() + "\r\n");
        m_lastCommand = text;
    } else if (m_virtual) {
        virtualCommand(text);
    }
}

int mspDriver::parsePacket(const QByteArray &bytes)
{
    if (bytes.size() > MaxPacketBytes) {
        qDebug() << "mspDriver: packet of" << bytes.size() << "bytes dropped, too long";
        return 0;
    }
    // Up to the first NUL, as text; the slave speaks ASCII, one byte a character.
    const int nul = bytes.indexOf('\0');
    QStringList words = QString::fromLatin1(nul < 0 ? bytes : bytes.left(nul))
                            .split(wordSeparator());
    while (!words.isEmpty()) {
        const QString tag = words.takeFirst();
        const Dispatch *match = nullptr;
        for (const Dispatch &d : s_dispatch) {
            if (tag == QLatin1String(d.tag)) {
                match = &d;
                break;
            }
        }
        if (!match)
            continue; // junk and replies that are not parsed, one word at a time
        if (!words.isEmpty() && words.first() == QLatin1String("ERROR")) {
            handleError(words);
            continue;
        }
        setLastError("   ");
        (this->*match->handler)(words);
    }
    return 0;
}

bool mspDriver::takeWord(QStringList &words, QString &word)
{
    // A reply ends where the next reply's tag begins: a cut reply never
    // swallows the one behind it.
    if (words.isEmpty() || words.first().isEmpty())
        return false;
    for (const Dispatch &d : s_dispatch) {
        if (words.first() == QLatin1String(d.tag))
            return false;
    }
    word = words.takeFirst();
    return true;
}

void mspDriver::setLastError(const char *word)
{
    std::memset(m_info.lastError, ' ', sizeof(m_info.lastError));
    std::memcpy(m_info.lastError, word, qMin(sizeof(m_info.lastError), strlen(word)));
}

void mspDriver::handleError(QStringList &words)
{
    words.takeFirst(); // "ERROR"
    QString code;
    if (!takeWord(words, code)) {
        setLastError("UND");
    } else {
        copyCut(m_info.lastError, int(sizeof(m_info.lastError)), code.left(3));
    }
    const QString err = m_info.lastErrorText().trimmed();
    if (err == QLatin1String("CIP"))
        qDebug() << "MSP command in progess";
    else if (err == QLatin1String("OOR"))
        qDebug() << "ERROR: Out of range value sent to MSP";
    else if (err == QLatin1String("NA"))
        qDebug() << "ERROR: MSP command not available";
    else if (err == QLatin1String("CE"))
        qDebug() << "ERROR: MSP command syntax error";
    else if (err == QLatin1String("NSC"))
        qDebug() << "ERROR: MSP command not found";
    else
        qDebug() << "ERROR: Unknown MSP error occured";
}

void mspDriver::parseProbeData(QStringList &words)
{
    // Parsed into a copy: a reply that runs short leaves the record's values
    // as they were and only clears its valid flag.
    mspProbeRecord r = m_probe;
    QString w[9];
    bool complete = true;
    for (int i = 0; i < 9; ++i) {
        if (!takeWord(words, w[i])) {
            complete = false;
            break;
        }
    }
    if (!complete) {
        setLastError("UND");
        m_probe.valid = false;
        qDebug() << "Invalid msp probe data recieved";
        return;
    }
    // The readings themselves must be numbers: "nan", "inf" or a number
    // beyond a float make the sample invalid, never a reading of 0 mV.
    bool stampOk = false, statusOk = false;
    r.timestamp = w[3].toLong(&stampOk);
    r.dispenseStatus = w[4].toInt(&statusOk);
    if (!finiteFloat(w[0], &r.rawMillivolts) || !finiteFloat(w[1], &r.temperature)
        || !finiteFloat(w[6], &r.millivolts) || !stampOk || !statusOk) {
        if (m_probesAnswered < m_probesSent)
            ++m_probesAnswered;
        setLastError("UND");
        m_probe.valid = false;
        qDebug() << "Invalid msp probe data recieved: not a number in" << w[0] << w[1] << w[3] << w[4] << w[6];
        return;
    }
    r.firstDeviation = toFloatOrZero(w[2]);
    r.secondDeviation = toFloatOrZero(w[5]);
    r.spareValue1 = toFloatOrZero(w[7]);
    r.spareValue2 = toFloatOrZero(w[8]);
    QString spare;
    if (takeWord(words, spare))
        r.spareStatus = spare.toInt();
    if (m_probesAnswered < m_probesSent)
        ++m_probesAnswered;
    if (m_staleProbes > 0) {
        --m_staleProbes;
        r.dispenseStatus = 0; // asked for before the dose: the slave had not seen it
    }
    r.valid = true;
    m_probe = r;
    emit mspProbeDataSignal();
}

void mspDriver::parseVersion(QStringList &words)
{
    // All seven words or none: a reply cut short, or words of another
    // command (a command's token where the version or serial stands), would
    // give the instrument a version and serial that are not the slave's. The
    // version stays as it was, unknown until a whole reply comes.
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9._-]+$"));
    static const char *const kCommands[] = {"MG", "SYSTEM", "BDS", "SSS", "SSG", "BLS", "BLG", "VS", "VG",
                                            "BSS", "BSG", "BES", "BHS", "BBG", "STP", "SH", "REBOOT", "ERROR"};
    QString w[7];
    int got = 0;
    while (got < 7 && takeWord(words, w[got]))
        ++got;
    bool whole = got == 7;
    for (int i = 0; whole && i < 7; ++i) {
        for (const char *c : kCommands)
            whole = whole && w[i] != QLatin1String(c);
    }
    whole = whole && plain.match(w[2]).hasMatch() && plain.match(w[6]).hasMatch();
    if (!whole) {
        setLastError("UND");
        qDebug() << "mspDriver: a version reply that is cut short or not one was refused:" << QStringList(w, w + got);
        return;
    }
    copyCut(m_info.version, int(sizeof(m_info.version)), w[2]);
    copyCut(m_info.serialNumber, 15, w[6]);
    m_info.serialNumber[15] = '\0';
    m_info.newVersion = true;
    m_info.versionValid = true;
    m_connected = true;
    qDebug() << "MSP Software Version : " << m_info.versionText();
    qDebug() << "MSP mfg serial number : " << m_info.serialText();
}

void mspDriver::parseStirSpeed(QStringList &words)
{
    QString w;
    if (takeWord(words, w))
        m_info.stirSpeed = int(toFloatOrZero(w));
    else
        setLastError("UND");
}

void mspDriver::parseGetValve(QStringList &words)
{
    QString w;
    if (takeWord(words, w))
        m_info.valve = w.toInt();
    else
        setLastError("UND");
}

void mspDriver::parseGetBuretteSize(QStringList &words)
{
    QString w;
    if (takeWord(words, w))
        m_info.buretteSize = w.toInt();
    else
        setLastError("UND");
}

void mspDriver::parseBacklight(QStringList &words)
{
    QString w;
    if (takeWord(words, w))
        m_info.backlight = w.toInt();
    else
        setLastError("UND");
}

void mspDriver::parseGetBuretteBusy(QStringList &words)
{
    QString w;
    if (takeWord(words, w))
        m_busy = w.toInt() != 0;
    else
        setLastError("UND");
    if (takeWord(words, w))
        m_position = w.toInt();
    else
        setLastError("UND");
}

int mspDriver::getProbeRecord(mspProbeRecord &record) const
{
    if (!m_connected) {
        qDebug() << "MSP not connected, returning error";
        return 1;
    }
    record = m_probe;
    return 0;
}

int mspDriver::getInfo(mspInfoRecord &record) const
{
    record = m_info;
    return 0;
}

void mspDriver::clearVersionFlag()
{
    m_info.newVersion = false;
}

void mspDriver::getLastCommand(QString &text) const
{
    text = m_lastCommand;
}

int mspDriver::setBuretteBusy()
{
    m_busy = true;
    return 1;
}

void mspDriver::requestProbeData() { sendCommand(QStringLiteral("MG")); }
void mspDriver::requestVersion() { sendCommand(QStringLiteral("SYSTEM")); }

void mspDriver::dispense(int microlitres)
{
    m_probe.dispenseStatus = 0;
    m_staleProbes = m_probesSent - m_probesAnswered;
    sendCommand(QStringLiteral("BDS %1").arg(microlitres));
}

void mspDriver::setStirSpeed(int step) { sendCommand(QStringLiteral("SSS %1").arg(step)); }
void mspDriver::setBacklight(int brightness) { sendCommand(QStringLiteral("BLS %1").arg(brightness)); }
void mspDriver::setValve(int state) { sendCommand(QStringLiteral("VS %1").arg(state)); }
void mspDriver::getValve() { sendCommand(QStringLiteral("VG")); }
void mspDriver::setBuretteSize(int millilitres) { sendCommand(QStringLiteral("BSS %1").arg(millilitres)); }
void mspDriver::getBuretteSize() { sendCommand(QStringLiteral("BSG")); }
void mspDriver::setEndBurette() { sendCommand(QStringLiteral("BES")); }
void mspDriver::setHomeBurette() { sendCommand(QStringLiteral("BHS")); }
void mspDriver::queryBurette() { sendCommand(QStringLiteral("BBG")); }
void mspDriver::stopBurette() { sendCommand(QStringLiteral("STP")); }
void mspDriver::stopAndHomeBurette() { sendCommand(QStringLiteral("SH")); }
void mspDriver::rebootSlave() { sendCommand(QStringLiteral("REBOOT")); }

void mspDriver::enableVirtualMsp()
{
    m_virtual = true;
    copyCut(m_info.version, int(sizeof(m_info.version)), QStringLiteral("0.30"));
    m_info.versionValid = true;
}

void mspDriver::enableVirtualMsp(const QString &fileName)
{
    enableVirtualMsp();
    m_dataFile.setFileName(fileName);
    if (m_dataFile.open(QIODevice::ReadOnly | QIODevice::Text)) {
        m_dataStream.setDevice(&m_dataFile);
        m_dataFileOpen = true;
        qDebug() << "Using " << fileName << " for MSP data source.";
    }
}

void mspDriver::virtualCommand(const QString &text)
{
    m_lastCommand = QStringLiteral("VirtualMSP: ") + text;
    if (text == QLatin1String("MG")) {
        virtualProbeRecord();
    } else if (text.startsWith(QLatin1String("BDS"))) {
        virtualProbeRecord();
        m_probe.dispenseStatus = 0;
    }
}

void mspDriver::virtualProbeRecord()
{
    mspProbeRecord r;
    r.dispenseStatus = 1;
    r.valid = true;
    r.temperature = 25.f;
    r.firstDeviation = 0.01f;
    r.secondDeviation = 0.01f;
    if (m_dataFileOpen) {
        if (m_dataStream.atEnd())
            m_dataStream.seek(0);
        static const QRegularExpression sep(QStringLiteral("(\\ |\\,|\\t)"));
        const QStringList w = m_dataStream.readLine(256).split(sep, Qt::SkipEmptyParts);
        if (w.isEmpty()) {
            qDebug() << "Error reading datafile.  Aborting.";
            m_dataFileOpen = false;
            return;
        }
        r.rawMillivolts = r.millivolts = toFloatOrZero(w.at(0));
        r.timestamp = w.size() > 1 ? w.at(1).toLong() : 0;
    } else {
        const SimRow &row = kSimTable[m_simIndex];
        m_simIndex = (m_simIndex + 1) % kSimRows;
        m_simValue = row.millivolts;
        m_simTime = int(row.seconds);
        r.rawMillivolts = r.millivolts = row.millivolts;
        r.timestamp = long(row.seconds * 1000.f);
    }
    m_probe = r;
    emit mspProbeDataSignal();
}
