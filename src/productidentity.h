#pragma once

#include <QObject>
#include <QString>

class SysInfoModel;

// Who the instrument is: the versions of the application, the screens and
// the slave, the serial number, and the model it is sold as (from the
// product type kept in `systemInfo`).
class ProductIdentity : public QObject
{
    Q_OBJECT
public:
    explicit ProductIdentity(QObject *parent = nullptr);

    // The application's build string, as stored in `systemInfo`.
    static QString buildString();

    SysInfoModel *sysInfo() const { return m_sysInfo; }

    QString titrationQMLVersion() const { return m_qmlVersion; }
    void setTitrationQMLVersion(const QString &v);
    QString titrationQMLCoreVersion() const { return m_qmlCoreVersion; }
    void setTitrationQMLCoreVersion(const QString &v);
    QString titrationCoreVersion() const { return m_coreVersion; }
    void setTitrationCoreVersion(const QString &v) { m_coreVersion = v; }
    QString mspQmlVersion() const { return m_mspQmlVersion; }
    void setMspQmlVersion(const QString &v);
    QString buildNumber() const { return m_buildNumber; }
    void setBuildNumber(const QString &v);
    // The build number without its "-g<hash>" tail.
    QString appVersionNumber() const;

    // The slave's firmware version as reported ("Unknown Version" until then).
    QString mspVersion() const;
    void setMspVersion(const QString &version);
    // Copies the slave's version to the one the screens show.
    void showMspVersion();
    QString mfgSerialNum() const { return m_serial; }
    void setMfgSerialNum(const QString &serial);

    QString titratorModelString() const { return m_modelString; }
    void setTitratorModelString(const QString &v);
    QString titratorModelNo() const { return m_modelNo; }
    void setTitratorModelNo(const QString &v);
    // "All-in-one", "pH", "Redox" or "ISE" (anything else: the first).
    void setProductType(const QString &productType);

signals:
    void changed();
    void mspVersionUpdated();
    void modelStringChanged();
    void modelNoChanged();
    void serialChanged();

private:
    SysInfoModel *m_sysInfo;
    QString m_qmlVersion = QStringLiteral("10.08.17.1");
    QString m_qmlCoreVersion;
    QString m_coreVersion;
    QString m_mspQmlVersion;
    QString m_buildNumber;
    QString m_mspVersion;
    QString m_serial = QStringLiteral("Unknown");
    QString m_modelString;
    QString m_modelNo = QStringLiteral("V400");
};
