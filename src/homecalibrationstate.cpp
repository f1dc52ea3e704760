#include "homecalibrationstate.h"

#include "models/setupmodel.h"

void HomeCalibrationState::refresh(SetupModel *setup, const QString &electrodeType)
{
    m_visible = false;
    m_time = QDateTime();
    m_average.clear();
    if (setup && electrodeType == QLatin1String("pH")) {
        setup->getLastCalibrationTime();
        m_time = setup->pHLastCalibrationTime();
        m_average = QString::number(double(setup->pHLastCalibrationAvg()), 'f', 1) + QStringLiteral("% Avg Slope");
        m_visible = m_time.isValid();
    }
    emit changed();
}
