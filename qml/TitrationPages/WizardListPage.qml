import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors

// A page of the method wizard: a list of rows over a ListModel, with the
// options or the page of each row in `dropdownDatasource` at the same index,
// and the button that ends the page. A page names its rows (rowTitles),
// says what each row shows and offers (describe), and takes the choices
// (rowPicked) and the taps on rows that open a page (rowOpened).
MainContentBackground {
    id: page

    property string nextText: ""
    property bool nextVisible: nextText !== ""
    property var dropdownDatasource: []
    property string comboTitle: ""
    readonly property alias listModel: rows
    readonly property alias listView: list

    // ---- what a page gives ----
    function rowTitles() { return [] }
    // { selector: text, value: text kept whole after it (the selector is
    //   elided first), options: [English entries] (a choice), isInfo: bool }
    function describe(title) { return { selector: "" } }
    function rowPicked(title, index, option) {}
    function rowOpened(title) {}
    function nextAction() {}

    // Removes the optional rows: the next loadModelData() builds them anew.
    function reInitializeUI() {
        rows.clear()
        dropdownDatasource = []
    }

    // The rows for the values now in the models, keeping the list where it is.
    function loadModelData() {
        var titles = rowTitles()
        var source = []
        var keepY = list.contentY
        for (var i = 0; i < titles.length; ++i) {
            var d = describe(titles[i])
            var options = d.options || null
            source.push(options)
            var row = { title: titles[i], selector: d.selector === undefined ? "" : String(d.selector),
                        selectorValue: d.value === undefined ? "" : String(d.value),
                        isDropdown: options !== null, infoField: d.isInfo === true,
                        isCustom: d.isCustom === true, optionCount: options ? options.length : 0,
                        loadIndex: options ? options.indexOf(d.current !== undefined ? d.current : d.selector) : -1 }
            if (i < rows.count)
                rows.set(i, row)
            else
                rows.append(row)
        }
        while (rows.count > titles.length)
            rows.remove(rows.count - 1)
        dropdownDatasource = source
        list.forceLayout()
        list.contentY = Math.min(keepY, Math.max(0, list.contentHeight - list.height))
    }

    // The row of that title, -1 when it is not on the page.
    function indexOfElement(title) {
        for (var i = 0; i < rows.count; ++i) {
            if (rows.get(i).title === title)
                return i
        }
        return -1
    }

    function openOptions(index) {
        var r = rows.get(index)
        var options = dropdownDatasource[index]
        multipleOptionsPage.setMultipleOptions(r.loadIndex, options, r.title, page)
        mainWindow.currentStack.push(multipleOptionsPage)
    }

    // The radio page saved a choice of the row `title`.
    function setMultipleOptions(selectedIndex, title) {
        var index = indexOfElement(title)
        if (index < 0)
            return
        rowPicked(title, selectedIndex, dropdownDatasource[index][selectedIndex])
        loadModelData()
    }

    // A pick on the radio list: "User Defined" opens its page at once, and
    // that page's Save closes the list (closeOptions).
    function multipleOptionsCustomEntries(selectedIndex, title) {
        var index = indexOfElement(title)
        if (index >= 0 && dropdownDatasource[index][selectedIndex] === "User Defined")
            rowPicked(title, selectedIndex, "User Defined")
    }
    function closeOptions() {
        var stack = mainWindow.currentStack
        if (stack && stack.currentItem === multipleOptionsPage)
            stack.pop()
    }

    function openCombo(index) {
        comboTitle = rows.get(index).title
        comboOptions.model = dropdownDatasource[index]
        combo.visible = true
        // Placed now, so that a tap coming before the next frame finds each
        // option where it is drawn.
        comboColumn.forceLayout()
    }

    ListModel { id: rows }

    ListView {
        id: list
        anchors.top: parent.top
        anchors.left: parent.left
        width: parent.width - (scroller.needed ? 60 : 0)
        anchors.bottom: footer.top
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: rows
        delegate: DropdownComboButton {
            width: list.width
            title: model.title
            selector: model.selector
            selectorValue: model.selectorValue
            isDropdown: model.isDropdown
            isInfo: model.infoField
            optionCount: model.optionCount
            onMultipleOptionsSelected: page.openOptions(index)
            onDropdownRequested: page.openCombo(index)
            onButtonPressed: page.rowOpened(model.title)
        }
    }
    ScrollButtons {
        id: scroller
        target: list
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.top: parent.top
        anchors.topMargin: 12
    }

    Item {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        height: page.nextVisible ? 72 : 0
        PopupButton {
            objectName: "wizardNext"
            visible: page.nextVisible
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: -30
            text: page.nextText
            onClicked: page.nextAction()
        }
    }

    // The combo of a row with four or fewer options, over the page.
    Rectangle {
        id: combo
        anchors.fill: parent
        visible: false
        color: "#80000000"
        z: 10
        MouseArea {
            anchors.fill: parent
            onClicked: combo.visible = false
        }
        Rectangle {
            width: 320
            height: comboColumn.height + 16
            anchors.centerIn: parent
            radius: 6
            color: Colors.whiteColor
            Column {
                id: comboColumn
                y: 8
                width: parent.width
                Text {
                    width: parent.width
                    height: 40
                    leftPadding: 20
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                    color: Colors.slateColor
                    font.family: "Roboto"
                    font.pixelSize: 15
                    text: qsTr(page.comboTitle) + ls.translatedText
                }
                Repeater {
                    id: comboOptions
                    Rectangle {
                        objectName: "comboOption" + index
                        width: comboColumn.width
                        height: 46
                        color: optionArea.pressed ? Colors.zirconColor : Colors.whiteColor
                        Text {
                            anchors.verticalCenter: parent.verticalCenter
                            x: 20
                            color: Colors.deeptangaroaColor
                            font.family: "Roboto"
                            font.pixelSize: 17
                            text: qsTr(modelData) + ls.translatedText
                        }
                        MouseArea {
                            id: optionArea
                            anchors.fill: parent
                            onClicked: {
                                combo.visible = false
                                page.rowPicked(page.comboTitle, index, modelData)
                                page.loadModelData()
                            }
                        }
                    }
                }
            }
        }
    }
    onVisibleChanged: if (!visible) combo.visible = false
}
