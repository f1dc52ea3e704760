import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The tip of the page on show, opened from the corner of the screen. The key
// of a tip is the objectName of its page, in English.
Item {
    id: tips

    property string title: ""
    readonly property int maximumLength: 4
    readonly property var tipsDirectory: ({
        "Blank Conc. Required": qsTr("Enter the concentration of the blank determined in an earlier blank titration."),
        "Blank Required": qsTr("Choose whether a blank titration is run, with a fixed or a variable sample amount."),
        "Burette": qsTr("Rinse, fill, empty or dispense a volume with the burette, and record its installation date."),
        "Burette Installation Date": qsTr("Enter the date the burette was installed. The instrument reminds you when it is due for maintenance."),
        "Calibrate Electrode": qsTr("Place the electrode in the first buffer or standard and follow the steps on screen. Up to five points can be used."),
        "Calibrate ISE": qsTr("Calibrate the ion-selective electrode in at least two standards of known concentration, from the lowest to the highest."),
        "Calibrate Redox": qsTr("Place the electrode in the redox standard and enter its value once the reading is stable."),
        "Calibrate pH(Calibration Point Successful screen)": qsTr("The point has been accepted. Rinse the electrode and place it in the next buffer, or finish the calibration."),
        "Calibrate pH(Calibration Result screen)": qsTr("The slope and offset of the calibration. A slope between 90% and 105% is good for most electrodes."),
        "Calibrate pH(Calibration Solution Standard Value Save screen)": qsTr("Enter the value of the buffer at the measured temperature and press \"Save\"."),
        "Calibrate pH(Edit and Accept)": qsTr("Check the recognised buffer value and accept it, or edit it when your buffer differs."),
        "Calibrate pH(Override screen)": qsTr("The reading has not become stable. You may accept the current value, but the calibration may be less accurate."),
        "Calibration Due": qsTr("Choose after how many hours without a calibration the instrument reminds you to calibrate."),
        "Calibration Log": qsTr("The Calibration Log may contain up to 50 points of electrode calibration data. Each point of calibration data may consist of up to five standards with all relevant associated data."),
        "Calibration Summary": qsTr("The results of this calibration: each standard with its reading, and the slope and offset."),
        "Conc. Input Mode": qsTr("Enter the titrant concentration by hand, or determine it by a standardization."),
        "Create Method": qsTr("A method joins an electrode setup, a titrant setup and a titration setup. Up to 10 methods can be saved."),
        "Cycle screen": qsTr("The titration curve as it is recorded. Stop ends the run; the results follow when the end is found."),
        "Data Logs": qsTr("Open the log of titrations, titrant standardizations, calibrations or direct measurements."),
        "Date": qsTr("Set today's date."),
        "Diagnostics": qsTr("Tests of the instrument's parts for service."),
        "Direct Measure Log": qsTr("The saved direct measurements, newest first. Tap a row for its details."),
        "Direct Measure Log Summary": qsTr("The details of one saved measurement."),
        "Direct Measure Units": qsTr("Choose the unit of the concentration shown in ISE measurements."),
        "Dispense Volume": qsTr("Enter the volume to dispense from the burette, in mL."),
        "Display": qsTr("Brightness, instrument name, date and time, language and temperature settings."),
        "Display Brightness": qsTr("Choose the brightness of the screen."),
        "Edit Method": qsTr("Change the electrode, titrant or titration setup of the method."),
        "Electrode Name": qsTr("Enter an electrode name using up to 14 alphanumeric characters. Press \"Save\" when done."),
        "Endpoint Values": qsTr("Enter the pH or mV value at which the titration ends. Up to three end points can be set."),
        "Factory Reset": qsTr("Returns every setting to its factory value. Logs and methods are deleted unless you choose to keep the methods."),
        "Files and Info": qsTr("Software versions of the instrument, and the software update."),
        "Firmware": qsTr("The version of the instrument's controller firmware."),
        "Fixed Reagent Weight": qsTr("Enter the weight of the reagent used in every run."),
        "Home": qsTr("Start a titration with the current method, or set up the electrode, titrant and titration first."),
        "ISE Type": qsTr("Choose the ion the electrode measures."),
        "Instrument Name": qsTr("Enter the name shown in the header of every screen and on every report."),
        "Language": qsTr("Choose the language of the screens and reports."),
        "MKA-Setup Titration": qsTr("Set up a multiple known addition: the additions, their volumes and the sample."),
        "Maintenance Due": qsTr("Choose after how long the instrument reminds you of maintenance."),
        "Max Total Titrant Volume": qsTr("The run stops when this volume of titrant has been added without reaching the end."),
        "Maximum Dose ΔVmax": qsTr("The largest volume added in one step, far from the end point."),
        "Maximum Response Time tmax": qsTr("The longest wait for a stable reading after each addition."),
        "Measure": qsTr("Direct measurement of pH, mV or ion concentration with stability detection."),
        "Measure ReadMode": qsTr("Choose what the meter measures: pH, redox or ion concentration."),
        "Methods": qsTr("The saved methods. Tap a method to run, edit, copy or delete it."),
        "Minimum Dose ΔVmin": qsTr("The smallest volume added in one step, near the end point."),
        "Minimum Response Time tmin": qsTr("The shortest wait after each addition before the reading is taken."),
        "New Titration Setup Process": qsTr("There are 3 steps to setting up a titration: the electrode, the titrant and the titration."),
        "Nominal Concentration": qsTr("The concentration the titrant is expected to have."),
        "Notifications": qsTr("Choose which reminders and warnings the instrument shows."),
        "Pre-dose Titrant Volume": qsTr("A pre-dose is useful to shorten titration time when the equivalence or endpoint volume is well predicted. A pre-dose volume of 50%-75% of the predicted equivalence or endpoint volume may be very effective."),
        "Pre-stir Duration": qsTr("The time the sample is stirred before the first addition."),
        "Reaction Ratio": qsTr("The number of titrant molecules that react with one molecule of the sample."),
        "Reagent Amount": qsTr("The amount of reagent added in a back titration."),
        "Reagent Concentration": qsTr("The concentration of the reagent added in a back titration."),
        "Reagent Molecular Weight": qsTr("The molecular weight of the reagent, in g/mol."),
        "Reagent Purity": qsTr("The purity of the reagent, in percent."),
        "Reagent Reaction Ratio": qsTr("The number of reagent molecules that react with one molecule of the sample."),
        "Reagent Volume": qsTr("The volume of reagent added in a back titration, in mL."),
        "Result Units": qsTr("Choose the unit of the result."),
        "Result Units(F*Consumption mmol)": qsTr("The result is the titrant consumption in mmol multiplied by a factor you enter."),
        "Sample Amount": qsTr("Choose whether the sample is given by volume or weight, fixed for every run or entered each time."),
        "Sample ID-Auto-Incremental": qsTr("Each measurement takes the next number as its sample ID."),
        "Sample ID-Manual": qsTr("Enter a sample ID for each measurement."),
        "Screen Calibration": qsTr("Calibrate the touch screen by tapping the marks."),
        "Settings": qsTr("Display, notifications, diagnostics and the instrument's files and information."),
        "Setup Electrode": qsTr("Choose the electrode type, name and resolution."),
        "Setup Titrant": qsTr("Enter the titrant's name, concentration and the way it is standardized."),
        "Setup Titration": qsTr("Choose the technique, sample amount, result unit and process control."),
        "Stability Criteria dE/dt": qsTr("The largest change of the reading per second at which it counts as stable."),
        "Standard Amount": qsTr("Choose whether the standard is given by volume or weight, fixed or entered each time."),
        "Standard Concentration": qsTr("The concentration of the primary standard."),
        "Standard Molecular Weight": qsTr("The molecular weight of the primary standard, in g/mol."),
        "Standard Name": qsTr("Choose the primary standard used to standardize the titrant."),
        "Standard Purity": qsTr("The purity of the primary standard, in percent."),
        "Standardization Reaction Ratio": qsTr("The number of titrant molecules that react with one molecule of the standard."),
        "Standardization Summary": qsTr("The result of the standardization: the titrant's concentration from each cycle and their average."),
        "Standardize Titrant Pre-Check": qsTr("Check the titrant, standard and electrode before the standardization starts."),
        "Stir Speed": qsTr("Choose how fast the sample is stirred."),
        "Target ΔE": qsTr("The change of the reading aimed at by each addition."),
        "Temperature Input": qsTr("Enter the sample temperature, or use the temperature probe (ATC)."),
        "Threshold": qsTr("The smallest slope of the curve that counts as an equivalence point."),
        "Time": qsTr("Set the time and choose the 12 or 24 hour display."),
        "Titrant Concentration": qsTr("Enter the concentration of the titrant."),
        "Titrant ID": qsTr("Enter an identifier of the titrant lot."),
        "Titrant Log": qsTr("The saved titrant standardizations, newest first."),
        "Titrant Name": qsTr("Choose the titrant."),
        "Titrant Reaction Ratio": qsTr("The number of titrant molecules that react with one molecule of the sample."),
        "Titration Log": qsTr("The saved titrations, newest first. Tap a row for its details."),
        "Titration Pre-Check": qsTr("Check the method, the calibration and the titrant before the titration starts."),
        "Titration Summary": qsTr("The result of each cycle and their average."),
        "User Defined Standard Name": qsTr("Enter the name of your own primary standard."),
        "User Defined Titrant Name": qsTr("Enter the name of your own titrant.")
    })

    function has(key) {
        return tipsDirectory[key] !== undefined
    }

    // Whether a tip is on show.
    property bool shown: false

    anchors.fill: parent
    visible: shown

    function presentTipsFor(pageTitle) {
        title = pageTitle
        var text = tipsDirectory[pageTitle]
        tipText.text = text !== undefined ? text + ls.translatedText : "Tips not found"
        flickable.contentY = 0
        titleLongText.text = title.length < maximumLength ? qsTr(title) + ls.translatedText : ""
        container.anchors.leftMargin = pageTitle === "Cycle screen" ? 20 : 104
        headerText.anchors.leftMargin = pageTitle === "Standardization Reaction Ratio" ? 0 : 30
        shown = tipText.text !== "Tips not found"
    }

    function dismiss() {
        shown = false
    }

    MouseArea {
        anchors.fill: parent
        onClicked: tips.dismiss()
    }

    Rectangle {
        id: container
        anchors.left: parent.left
        anchors.leftMargin: 104
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        // As tall as the text needs, scrolling beyond 340 pixels.
        height: Math.min(340, closeButton.height + tipText.implicitHeight + 24)
        radius: 6
        color: Colors.whiteColor
        border.color: Colors.summerSkyColor
        border.width: 2

        Text {
            id: headerText
            anchors.left: parent.left
            anchors.leftMargin: 30
            anchors.right: closeButton.left
            y: 16
            elide: Text.ElideRight
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 18
            textFormat: Text.StyledText
            text: qsTr("About this screen") + ls.translatedText + ": <b>" + qsTr(tips.title) + "</b>"
        }
        Text {
            id: titleLongText
            visible: false
        }
        Item {
            id: closeButton
            anchors.right: parent.right
            anchors.top: parent.top
            width: 48
            height: 48
            Text {
                anchors.centerIn: parent
                font.family: Icons.fontFamily
                font.pixelSize: 26
                color: Colors.slateColor
                text: Icons.close
            }
            MouseArea {
                anchors.fill: parent
                onClicked: tips.dismiss()
            }
        }
        Flickable {
            id: flickable
            anchors.top: closeButton.bottom
            anchors.left: parent.left
            anchors.leftMargin: 30
            anchors.right: parent.right
            anchors.rightMargin: 30
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 16
            clip: true
            contentHeight: tipText.implicitHeight
            // A tap on the text closes the tip as a tap anywhere else does
            // (a drag still scrolls a long one); nothing beneath gets it.
            MouseArea {
                width: flickable.width
                height: Math.max(flickable.height, tipText.implicitHeight)
                onClicked: tips.dismiss()
            }
            Text {
                id: tipText
                width: flickable.width
                wrapMode: Text.WordWrap
                color: Colors.deeptangaroaColor
                font.family: "Roboto"
                font.pixelSize: 17
                lineHeight: 1.2
            }
        }
    }
}
