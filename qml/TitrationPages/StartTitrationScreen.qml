import QtQuick 2.12
import QtCharts 2.3
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons
import "../Constants/NumberFormat.js" as NumberFormat
import "RunMath.js" as RunMath

// The full-screen run: the live curve (or, for a known addition, the table
// of additions), the stirrer, the cycle button, the closed cycles and
// Complete. The controller runs one cycle at a time; the sequence of cycles
// (at most five) is this screen's.
Rectangle {
    id: screen

    // Standardisation of the titrant (the second instance) or titration.
    property bool standardization: false
    property int cycleIndex: 1
    property bool titrationRunning: false
    property bool isStopButtonClicked: false
    property int counter: 0
    property real xMax: 0.5
    property real yMin: 9999
    property real yMax: 0
    // The chart image of the last closed cycle is on its way (grabs are
    // asynchronous): Complete waits for it, so the stored cycle has its image.
    property bool imagePending: false
    property var mkaAdditonArray: []
    property var mkaCycleArray: []
    property int mkatimerCount: 0
    property date runDate: new Date()
    readonly property bool isMka: electrode.electrodeType === "ISE-MKA"
    readonly property bool phDisplay: electrode.electrodeType === "pH" && titration.displayUnits === "pH"
    readonly property string methodOrTechnique: method.methodName !== "" ? method.methodName
                                                : isMka ? electrode.iseType : titration.titrationType
    property alias processListview: processListview
    property alias completeButton: completeButton

    width: 640
    height: 480
    visible: false
    color: Colors.whiteSmokeColor

    // Taps never fall through to the section below.
    MouseArea { anchors.fill: parent }

    function headerText(state) {
        if (standardization)
            return qsTr("Standardize Titrant") + " | " + state
        return qsTr("Cycle No. ") + cycleIndex + " | " + methodOrTechnique + " | " + state
    }

    // What the run keeps of this cycle's inputs.
    function setCycleModelValue() {
        runtitration.standAmountValue = titrant.standAmount_Value
        runtitration.sampleAmountValue = titration.sampleAmountValue
        runtitration.reagentAmountValue = titration.reagentAmountValue
        runtitration.temperature = dm.isProbePresent() ? dm.probeTemp : setup.temperatureInput
    }

    function clearChart() {
        splineSeries.removePoints(0, splineSeries.count)
        scatterSeries.removePoints(0, scatterSeries.count)
        valueAxisY.min = 0
        valueAxisY.max = 1
        xMax = 0.5
        yMin = 9999
        yMax = 0
        counter = 0
        pHValueLabel.text = ""
        mLValueLabel.text = ""
    }

    function start() {
        if (titrationRunning) {
            console.log("Titration already Running")
            return
        }
        titrationRunning = true
        clearChart()
        runtitration.cycleno = cycleIndex
        runtitration.methodId = method.id
        runtitration.methodName = method.methodName
        runtitration.electrodeType = electrode.electrodeType
        if (mainWindow.processIndex === 1 || standardization)
            dm.titrationModel.titrationType = "Standardization"
        else if (!dm.blankTitrationMode)
            dm.titrationModel.titrationType = "Titration"
        else
            dm.titrationModel.titrationType = titration.titrationType === "Direct Titration" ? "Direct Blank" : "Back Blank"
        tc.qmlStartTitration()
        titrationButton.text = qsTr("Stop Cycle") + ls.translatedText
        header.text = headerText("RUNNING")
    }

    function stop() {
        if (!isStopButtonClicked)
            return
        tc.qmlStopTitration()
        titrationRunning = false
        updateCycleButtonText()
        header.text = standardization ? qsTr("Standardize Titrant") + " | STOPPED"
                                      : qsTr("Cycle No. ") + cycleIndex + " | STOPPED"
    }

    function addPointToChart(point) {
        if (point.x * 1.1 > xMax && point.x * 1.1 > 0.5)
            xMax = point.x * 1.1
        var y = point.y
        if (y > yMax) {
            yMax = y
            valueAxisY.max = phDisplay ? Number((yMax + 0.4).toFixed(1)) : yMax + 20
        }
        if (y < yMin) {
            yMin = y
            valueAxisY.min = phDisplay ? Number((yMin - 0.4).toFixed(1)) : yMin - 20
        }
        splineSeries.append(point.x, y)
        ++counter
        pHValueLabel.text = (phDisplay ? "pH: " : "mV: ") + y.toFixed(phDisplay ? NumberFormat.countDecimal(electrode.resolution) : 1)
        mLValueLabel.text = "mL: " + point.x.toFixed(3)
    }

    // The cycle's curve as a picture for the run's records.
    function getImagesOfCycle() {
        imagePending = true
        var asked = chartView.grabToImage(function (result) {
            runtitration.insertCycleImage(result.image)
            imagePending = false
        })
        if (!asked) {
            console.log("The chart image of the cycle could not be taken")
            imagePending = false
        }
    }

    function titrationCompleted() {
        if (!visible)
            return
        setCycleModelValue()
        if (!isMka) {
            getImagesOfCycle()
            updateCycleUI()
        } else if (titrationRunning) {
            // A known-addition cycle that ended without its result keeps nothing.
            titrationRunning = false
            stopMkaTitration()
            header.text = headerText("STOPPED")
            updateCycleButtonText()
        }
    }

    function updateCycleUI() {
        titrationRunning = false
        header.text = headerText("STOPPED")
        updateTitrationCycle()
        updateCycleButtonText()
    }

    function updateTitrationCycle() {
        var cycles = dm.titrationcycles
        if (cycles.length === 0)
            return
        var element = cycles[cycles.length - 1]
        processListview.concUnit = standardization ? titrant.resultUnits : titration.resultUnits
        processListview.endPointsCount = standardization ? 1 : Math.max(1, titration.noOfEndPoints)
        processListview.blankMode = dm.blankTitrationMode
        if (cycleIndex === element.cycleNo) {
            processListview.addCycle(element)
            ++cycleIndex
        }
    }

    function updateCycleButtonText() {
        titrationButton.text = qsTr(RunMath.cycleButtonText(cycleIndex)) + ls.translatedText
    }

    function titrationButtonClicked() {
        if (titrationRunning) {
            isStopButtonClicked = true
            dynamicLoader.loadSuccessPopUp(qsTr("Cycle Stopped") + ls.translatedText,
                                           qsTr("Your cycle has stopped and data has not been saved.") + ls.translatedText, "")
            stop()
            if (isMka)
                stopMkaTitration()
            else
                dm.titrationModel.stopCycle()
            return
        }
        isStopButtonClicked = false
        if (cycleIndex > 1 && !standardization && !dm.blankTitrationMode
                && (titration.sampleAmount === "Variable Weight" || titration.sampleAmount === "Variable Volume")) {
            variableSampleAmountPopup.ask(titration.sampleAmount === "Variable Volume", cycleIndex, false)
            return
        }
        if (cycleIndex > 1 && standardization
                && (titrant.standAmount === "Variable Weight" || titrant.standAmount === "Variable Volume")) {
            variableStandardAmountPopup.ask(titrant.standAmount === "Variable Volume", cycleIndex)
            return
        }
        startCycle()
    }

    // The next cycle, by the kind of run.
    function startCycle() {
        if (isMka) {
            mkaPageReset(false)
            startMkaTitration()
        } else {
            start()
        }
    }

    function complete() {
        if (imagePending)
            return
        var titrating = dm.deviceMode === "Titration"
        titrationSummaryPage.sampleId = titration.sampleIDValue
        if (titration.sampleID === "Auto-Incremental" && titrating && !dm.blankTitrationMode) {
            titration.sampleIDValue = RunMath.nextSampleId(titration.sampleIDValue)
            titration.setTitrationSetupValues(electrode.electrodeType)
        }
        if (mainWindow.currentStack === titrationStack)
            method.isChangeFromHome = true
        else
            method.isChangeFromHome = false
        dm.titrationModel.electrodeType = electrode.electrodeType
        dm.titrationModel.methodId = method.id
        var stored
        if (isMka) {
            dm.titrationModel.mkaCycleInput(mkaCycleArray.map(function (c) { return JSON.stringify(c) }).join(" | "),
                                            mkaAdditonArray.map(function (a) { return JSON.stringify(a) }).join(" | "))
        }
        if (titrating)
            stored = dm.storeTitrationRun(titrationLogModel, method.isChangeFromHome, setup.isDatalogFullNotifOn)
        else
            stored = dm.storeStandardisationRun(standardisationLogModel, method.isChangeFromHome, setup.isDatalogFullNotifOn)
        if (!stored) {
            // A database that takes no writes will not take it later either.
            mainWindow.showMessage(qsTr("Not Saved") + ls.translatedText,
                                   (dm.databaseMessage.length > 0
                                    ? qsTr("The run could not be saved: the database cannot be written. Its figures stay on show.")
                                    : qsTr("The run could not be saved. Its cycles are kept; press Complete to try again.")) + ls.translatedText)
            return
        }
        if (isMka)
            dm.getMKAtitrationCycleFromDB(dm.titrationModel.id)
        else
            dm.getTitrationCycleLogFromDb(dm.titrationModel.id)
        var summary = titrating ? titrationSummaryPage : standardizationSummary
        summary.fromLog = false
        summary.injectSummaryModel()
        mainWindow.hideFullscreen()
        mainWindow.currentStack.push(summary)
        cycleIndex = 0
        processListview.clearList()
        splineSeries.removePoints(0, splineSeries.count)
    }

    function closeRun() {
        processDestroyConfirmationPopup.processName = standardization ? "Standardization" : "Titration"
        processDestroyConfirmationPopup.setTitle = (standardization ? qsTr("Cancelling Standardization")
                                                                    : qsTr("Cancelling Titration")) + ls.translatedText
        processDestroyConfirmationPopup.setMessage = qsTr("Are you sure you want to cancel? The cycles of this run will not be saved.") + ls.translatedText
        mainWindow.showPopup(processDestroyConfirmationPopup)
    }

    function resetPage() {
        if (titrationRunning) {
            titrationRunning = false
            isStopButtonClicked = true
            stop()
        }
        stir.closeList()
        clearChart()
        valueAxisY.min = 0
        valueAxisY.max = 1
        processListview.clearList()
        mkaPageReset(true)
        // A run left by the close cross keeps none of its cycles for the next.
        dm.initializeTitration()
        cycleIndex = 1
        imagePending = false
        updateCycleButtonText()
        header.text = headerText("READY")
    }

    // ---- known addition ----------------------------------------------------
    function startMkaTitration() {
        titrationRunning = true
        runtitration.cycleno = cycleIndex
        runtitration.methodId = method.id
        runtitration.methodName = method.methodName
        runtitration.electrodeType = electrode.electrodeType
        titrationButton.text = qsTr("Stop Cycle") + ls.translatedText
        header.text = headerText("RUNNING")
        dm.titrationModel.titrationType = "Titration"
        tc.qmlStartTitration()
        runDate = new Date()
    }

    function stopMkaTitration() {
        // The additions of the stopped cycle are not kept.
        mkaAdditonArray = mkaAdditonArray.filter(function (a) { return a.cycleno !== cycleIndex })
        mkaPageReset(false)
    }

    function mkaPageReset(forTitration) {
        mkamodel.clear()
        isStopButtonClicked = false
        mkatimerCount = 0
        if (forTitration) {
            mkaAdditonArray = []
            mkaCycleArray = []
            processListview.clearList()
            cycleIndex = 1
        }
    }

    function addMkaAddition(volume, mV, calConc, precision, drift, slope, e0) {
        var now = new Date()
        var record = { additionNo: mkatimerCount, cycleno: cycleIndex, volume: RunMath.numberOf(volume),
                       mVvalue: RunMath.numberOf(mV), calConc: RunMath.numberOf(calConc),
                       precision: RunMath.numberOf(precision), drift: RunMath.numberOf(drift),
                       slope: RunMath.numberOf(slope), E0: RunMath.numberOf(e0), mcreatedAt: now, mupdatedAt: now }
        mkaAdditonArray.push(record)
        ++mkatimerCount
        mkamodel.append({ no: record.additionNo + 1, volume: record.volume.toFixed(3), mV: record.mVvalue.toFixed(1),
                          conc: record.calConc === 0 ? "---" : mainWindow.sigFigsDec(record.calConc, 4, 5),
                          precision: record.precision === 999 ? "---" : record.precision.toFixed(1) })
    }

    function onMkaCycleComplete(avgConc, slope, spike) {
        var mine = mkaAdditonArray.filter(function (a) { return a.cycleno === cycleIndex })
        var avg = RunMath.mkaAverages(mine)
        var now = new Date()
        var cycle = { cycleno: cycleIndex, avgVolume: avg.volume, avgmVvalue: avg.mV,
                      avgCalconc: RunMath.numberOf(avgConc), avgPrecision: avg.precision,
                      mcreatedAt: now, mupdatedAt: now, inclAvg: 1, slope: RunMath.numberOf(slope),
                      spikeRecovery: RunMath.numberOf(spike),
                      temperature: dm.isProbePresent() === false ? setup.temperatureInput : dm.probeTemp,
                      runningDuration: RunMath.duration(now - runDate), sampleAmountValue: titration.sampleAmountValue,
                      lastRunTime: now.toISOString() }
        mkaCycleArray.push(cycle)
        processListview.concUnit = titration.resultUnits
        processListview.addMkaCycle(cycle)
        cycleIndex = mkaCycleArray.length
        titrationRunning = false
        header.text = headerText("STOPPED")
        ++cycleIndex
        updateCycleButtonText()
    }

    Connections {
        target: dm
        enabled: screen.visible && screen.isMka
        function onSigMKAPointsToUI(volume, mV, calConc, precision, drift, slope, E0) {
            screen.addMkaAddition(volume, mV, calConc, precision, drift, slope, E0)
        }
        function onMkaTitrationCompleted(avgConc, slope, spike) {
            screen.onMkaCycleComplete(avgConc, slope, spike)
        }
    }

    // ---- layout ---------------------------------------------------------------
    Rectangle {
        id: headerBar
        width: parent.width
        height: 44
        color: Colors.lightelephantColor
        Text {
            id: header
            objectName: "runHeader"
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.right: infoButton.left
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideRight
            color: Colors.whiteColor
            font.pixelSize: 17
            font.weight: Font.Medium
        }
        // The run screen's tip: its mark sits in the header, since the window's
        // tip corner would lie over the Complete button.
        Text {
            id: infoButton
            objectName: "runInfoButton"
            anchors.right: closeButton.left
            anchors.verticalCenter: parent.verticalCenter
            width: 40
            height: 40
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.family: Icons.fontFamily
            font.pixelSize: 26
            color: Colors.whiteColor
            text: Icons.info
            MouseArea { anchors.fill: parent; onClicked: tips.presentTipsFor("Cycle screen") }
        }
        Text {
            id: closeButton
            objectName: "runCloseButton"
            // left of the window's screenshot corner (x 600 on), which takes every tap there
            anchors.right: parent.right
            anchors.rightMargin: 48
            anchors.verticalCenter: parent.verticalCenter
            width: 40
            height: 40
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            visible: !screen.titrationRunning
            font.family: Icons.fontFamily
            font.pixelSize: 28
            color: Colors.whiteColor
            text: Icons.close
            MouseArea { anchors.fill: parent; enabled: !screen.titrationRunning; onClicked: screen.closeRun() }
        }
    }

    ChartView {
        id: chartView
        visible: !screen.isMka
        x: 0
        y: 44
        width: 400
        height: 330
        antialiasing: true
        legend.visible: false
        backgroundRoundness: 0
        margins { left: 4; right: 8; top: 8; bottom: 4 }
        ValueAxis {
            id: valueAxisX
            titleText: "Vol. (mL)"
            titleFont: Qt.font({ family: "Roboto", pixelSize: 14 })
            labelsFont: Qt.font({ family: "Roboto", pixelSize: 12 })
            tickCount: 2
            min: 0
            max: screen.xMax
            labelFormat: "%.2f"
        }
        ValueAxis {
            id: valueAxisY
            titleText: screen.phDisplay ? "pH" : "mV"
            titleFont: Qt.font({ family: "Roboto", pixelSize: 14 })
            labelsFont: Qt.font({ family: "Roboto", pixelSize: 12 })
            tickCount: 2
            min: 0
            max: screen.phDisplay ? 14 : 100
            labelFormat: "%.1f"
        }
        LineSeries {
            id: splineSeries
            axisX: valueAxisX
            axisY: valueAxisY
            color: Colors.summerSkyColor
            width: 2
        }
        ScatterSeries {
            id: scatterSeries
            axisX: valueAxisX
            axisY: valueAxisY
            color: Colors.orangepeelColor
            markerSize: 10
        }
    }

    // The additions of the known-addition cycle on show.
    Rectangle {
        visible: screen.isMka
        x: 8
        y: 52
        width: 384
        height: 318
        color: Colors.whiteColor
        border.color: Colors.lineColor
        Row {
            id: mkaHeading
            x: 8
            height: 32
            Repeater {
                model: [qsTr("No."), qsTr("Vol. (mL)"), "mV", qsTr("Conc."), qsTr("Prec. %")]
                Text {
                    width: index === 0 ? 40 : 82
                    height: 32
                    verticalAlignment: Text.AlignVCenter
                    text: modelData
                    color: Colors.slateColor
                    font.pixelSize: 14
                }
            }
        }
        ListView {
            anchors.top: mkaHeading.bottom
            anchors.bottom: parent.bottom
            x: 8
            width: parent.width - 16
            clip: true
            model: ListModel { id: mkamodel }
            delegate: Row {
                height: 30
                Repeater {
                    model: [no, volume, mV, conc, precision]
                    Text {
                        width: index === 0 ? 40 : 82
                        height: 30
                        verticalAlignment: Text.AlignVCenter
                        text: modelData
                        color: Colors.deeptangaroaColor
                        font.pixelSize: 15
                    }
                }
            }
        }
        Text {
            anchors.centerIn: parent
            visible: screen.titrationRunning && mkamodel.count === 0
            text: qsTr("Waiting for the first addition") + ls.translatedText
            color: Colors.slateColor
            font.pixelSize: 15
        }
    }

    Row {
        x: 16
        y: 378
        spacing: 32
        visible: !screen.isMka
        Text { id: pHValueLabel; color: Colors.deeptangaroaColor; font.pixelSize: 17 }
        Text { id: mLValueLabel; color: Colors.deeptangaroaColor; font.pixelSize: 17 }
    }

    ProcessListView {
        id: processListview
        x: 408
        y: 52
        width: 224
        height: 350
        // The end point is marked on the point of the curve nearest to its volume.
        onVolumeGenerated: {
            var nearest = -1
            for (var i = 0; i < splineSeries.count; ++i) {
                if (nearest < 0 || Math.abs(splineSeries.at(i).x - veqp) < Math.abs(splineSeries.at(nearest).x - veqp))
                    nearest = i
            }
            if (nearest >= 0 && veqp > 0)
                scatterSeries.append(splineSeries.at(nearest).x, splineSeries.at(nearest).y)
        }
    }

    Rectangle {
        y: 412
        width: parent.width
        height: 68
        color: Colors.whiteColor
        Rectangle { width: parent.width; height: 1; color: Colors.lineColor }

        StirComponent {
            id: stir
            x: 16
            anchors.verticalCenter: parent.verticalCenter
            standardization: screen.standardization
        }
        PopupButton {
            id: titrationButton
            objectName: "titrationButton"
            anchors.verticalCenter: parent.verticalCenter
            x: 190
            width: 200
            visible: text !== ""
            onClicked: screen.titrationButtonClicked()
        }
        PopupButton {
            id: completeButton
            objectName: "completeButton"
            anchors.verticalCenter: parent.verticalCenter
            anchors.right: parent.right
            anchors.rightMargin: 16
            width: 200
            visible: !screen.titrationRunning && screen.cycleIndex > 1
            enabled: !screen.imagePending
            text: qsTr("Complete") + ls.translatedText
            onClicked: screen.complete()
        }
    }

    Component.onCompleted: resetPage()
}
