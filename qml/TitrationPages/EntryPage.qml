import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "EntryRules.js" as EntryRules

// The entry page of the method wizard: one to three numbers (by the limits
// of EntryRules) or one name. Save checks every field; a refusal keeps the
// page with its message and changes nothing, a success pops the page,
// stores the values and hands them to the opener's `saved`.
MainContentBackground {
    id: page
    // The key of its tip: the value's or the name's (set as it opens).
    objectName: "entryPage"

    property var keys: []          // numbers: one key of EntryRules a field
    property string nameKind: ""   // a name: its kind in EntryRules.names
    property var target: null      // the object that takes the values
    property var props: []         // its properties, one a field
    property var saved: null       // function(values) after a success
    property string unit: ""
    property string errorMessage: ""
    property var lastValues: []

    function open(title, fieldKeys, fieldTarget, fieldProps, onSaved) {
        nameKind = ""
        keys = fieldKeys
        target = fieldTarget
        props = fieldProps
        saved = onSaved || null
        unit = EntryRules.entry(fieldKeys[0]).unit || ""
        objectName = EntryRules.tipKey(fieldKeys[0])
        var values = []
        for (var i = 0; i < fieldKeys.length; ++i) {
            var v = fieldTarget ? fieldTarget[fieldProps[i]] : ""
            values.push(v === undefined || v === null ? "" : String(Number(v)))
        }
        show(title, values)
    }

    // A single value of EntryRules: its object and property by the table.
    function openEntry(key, onSaved, targetOverride) {
        var e = EntryRules.entry(key)
        var objects = { titrant: titrant, titration: titration, electrode: electrode }
        open(e.title, [key], targetOverride || objects[e.field[0]], [e.field[1]], onSaved)
    }

    function openName(kind, current, onSaved) {
        nameKind = kind
        keys = [kind]
        target = null
        props = []
        saved = onSaved || null
        unit = ""
        objectName = EntryRules.names[kind].title
        show(EntryRules.names[kind].title, [current])
    }

    function show(title, values) {
        header3Text = Qt.binding(function() { return qsTr(title) + ls.translatedText })
        lastValues = values
        errorMessage = ""
        fields.model = 0
        fields.model = values.length
        for (var i = 0; i < values.length; ++i)
            fields.itemAt(i).text = values[i]
        mainWindow.currentStack.push(page)
        // The first field takes the focus, and with it is cleared for the
        // new value; the keyboard comes up with it. The keyboard's own hiding leaves the focus where it is:
        // keys of an attached keyboard go on into the field.
        if (fields.count > 0) {
            fields.itemAt(0).forceActiveFocus()
            Qt.inputMethod.show()
        }
    }

    function save() {
        var values = []
        for (var i = 0; i < fields.count; ++i) {
            var text = fields.itemAt(i).text
            // A field left empty where the value has no empty default keeps
            // the value it had.
            if (nameKind === "" && text.trim() === "" && EntryRules.entry(keys[i]).empty === undefined)
                text = lastValues[i]
            var r = nameKind !== ""
                    ? EntryRules.validateName(nameKind, text, { format: mainWindow.format, formatNum: mainWindow.formatNum })
                    : EntryRules.validate(keys[i], text, { buretteSize: setup.buretteSize })
            if (!r.ok) {
                // The next tap on a field takes the focus anew: it clears
                // the field and the message.
                for (var f = 0; f < fields.count; ++f)
                    fields.itemAt(f).release()
                Qt.inputMethod.hide()
                errorMessage = r.message
                return false
            }
            values.push(r.value)
        }
        for (var k = 0; k < fields.count; ++k)
            fields.itemAt(k).release()
        Qt.inputMethod.hide()
        mainWindow.currentStack.pop()
        if (target) {
            for (var j = 0; j < values.length; ++j)
                target[props[j]] = values[j]
        }
        if (saved)
            saved(values)
        return true
    }

    // The button stands beside the fields, above the keyboard.
    PopupButton {
        id: saveButton
        objectName: "entrySave"
        anchors.right: parent.right
        anchors.rightMargin: 24
        y: 18
        text: qsTr("Save") + ls.translatedText
        onClicked: page.save()
    }
    Column {
        id: form
        x: 30
        y: 18
        width: saveButton.x - 30 - 20
        spacing: 10

        Repeater {
            id: fields
            model: 0
            Row {
                property alias text: field.text
                function forceActiveFocus() { field.forceActiveFocus() }
                function release() { field.focus = false }
                spacing: 12
                TextField {
                    id: field
                    objectName: "entryField" + (index + 1)
                    width: form.width - unitLabel.width - 12
                    height: 48
                    font.family: "Roboto"
                    font.pixelSize: 20
                    maximumLength: page.nameKind !== "" ? 20 : 32
                    inputMethodHints: page.nameKind !== "" ? Qt.ImhNone : Qt.ImhFormattedNumbersOnly
                    color: page.errorMessage !== "" ? Colors.orangepeelColor : Colors.deeptangaroaColor
                    onActiveFocusChanged: {
                        if (activeFocus) {
                            page.errorMessage = ""
                            text = ""
                        } else if (text === "") {
                            text = page.lastValues[index]
                        }
                    }
                    onTextChanged: {
                        if (page.nameKind === "") {
                            var clean = EntryRules.stripLetters(text)
                            if (clean !== text)
                                text = clean
                        }
                    }
                    Keys.onReturnPressed: page.save()
                }
                Text {
                    id: unitLabel
                    anchors.verticalCenter: parent.verticalCenter
                    width: page.unit === "" ? 0 : Math.max(60, implicitWidth)
                    color: Colors.slateColor
                    font.family: "Roboto"
                    font.pixelSize: 17
                    text: page.unit
                }
            }
        }
        Text {
            width: form.width
            visible: page.errorMessage !== ""
            wrapMode: Text.WordWrap
            color: Colors.orangepeelColor
            font.family: "Roboto"
            font.pixelSize: 14
            text: qsTr(page.errorMessage) + ls.translatedText
        }
    }
}
