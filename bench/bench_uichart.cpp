// The run screen's chart redrawn with 500 points on it: one more point
// appended (the oldest taken off, so that 500 stay) and the frame drawn,
// by Qt Quick's software renderer as on a panel without a graphics
// processor. The chart is built as the run screen builds it (400 x 330,
// antialiased, a 2 px line and the end points' markers, value axes).
#include <QApplication>
#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

namespace {

const char *const ChartQml = R"qml(
import QtQuick 2.12
import QtQuick.Window 2.12
import QtCharts 2.3
Window {
    width: 640; height: 480; visible: true
    property alias series: line
    ChartView {
        x: 0; y: 44; width: 400; height: 330
        antialiasing: true
        legend.visible: false
        backgroundRoundness: 0
        margins { left: 4; right: 8; top: 8; bottom: 4 }
        ValueAxis { id: ax; titleText: "Vol. (mL)"; tickCount: 2; min: 0; max: 22; labelFormat: "%.2f" }
        ValueAxis { id: ay; titleText: "pH"; tickCount: 2; min: 0; max: 14; labelFormat: "%.1f" }
        LineSeries { id: line; objectName: "runLine"; axisX: ax; axisY: ay; color: "#29abe2"; width: 2 }
        ScatterSeries { axisX: ax; axisY: ay; color: "#f7a21b"; markerSize: 10; XYPoint { x: 10; y: 8.7 } }
    }
}
)qml";

// A titration curve's shape, point i of n: pH from 3 to 12 over 20 mL.
double curve(int i, int n)
{
    const double v = 20.0 * i / n;
    return 7.5 + 4.5 * std::tanh((v - 10.0) * 1.5);
}

struct Chart {
    QQmlEngine engine;
    std::unique_ptr<QObject> root;
    QQuickWindow *window = nullptr;
    QObject *series = nullptr;
    bool swapped = false;

    bool load()
    {
        QQmlComponent component(&engine);
        component.setData(ChartQml, QUrl::fromLocalFile(QStringLiteral("/bench/chart.qml")));
        root.reset(component.create());
        if (!root)
            qWarning("the chart: %d %s", int(component.status()), qPrintable(component.errorString()));
        window = qobject_cast<QQuickWindow *>(root.get());
        if (!window) {
            qWarning("no window: %s", root ? root->metaObject()->className() : "nothing");
            return false;
        }
        series = qvariant_cast<QObject *>(root->property("series"));
        if (!series)
            series = root->findChild<QObject *>(QStringLiteral("runLine"));
        QObject::connect(window, &QQuickWindow::frameSwapped, window, [this] { swapped = true; }, Qt::DirectConnection);
        return series != nullptr;
    }
    void append(double x, double y) { QMetaObject::invokeMethod(series, "append", Q_ARG(qreal, x), Q_ARG(qreal, y)); }
    void removeFirst() { QMetaObject::invokeMethod(series, "remove", Q_ARG(int, 0)); }
    // Until the next frame is on the glass (at most 2 s).
    bool waitFrame()
    {
        swapped = false;
        window->requestUpdate();
        QElapsedTimer t;
        t.start();
        while (!swapped && t.elapsed() < 2000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        return swapped;
    }
};

void BM_RunChartRedraw500Points(benchmark::State &state)
{
    Chart chart;
    if (!chart.load()) {
        state.SkipWithError("the chart did not load");
        return;
    }
    constexpr int points = 500;
    for (int i = 0; i < points; ++i)
        chart.append(20.0 * i / points, curve(i, points));
    chart.waitFrame();
    chart.waitFrame();
    int next = points;
    for (auto _ : state) {
        QElapsedTimer t;
        t.start();
        chart.removeFirst();
        chart.append(20.0 * (next % points) / points, curve(next % points, points));
        ++next;
        const bool drawn = chart.waitFrame();
        const double seconds = t.nsecsElapsed() / 1e9;
        if (!drawn) {
            state.SkipWithError("no frame was drawn");
            return;
        }
        state.SetIterationTime(seconds);
    }
}
BENCHMARK(BM_RunChartRedraw500Points)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    // The software scene graph, off any display: the figure is the chart's
    // drawing, as a panel without a graphics processor draws it.
    qputenv("QT_QUICK_BACKEND", "software");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
