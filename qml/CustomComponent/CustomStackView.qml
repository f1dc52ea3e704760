import QtQuick 2.12
import QtQuick.Controls 2.12

// A section stack: beside the side bar, pages pushed and popped by id with
// no animation.
StackView {
    x: 90
    y: 0
    width: 550
    height: 480
    visible: false

    pushEnter: Transition {}
    pushExit: Transition {}
    popEnter: Transition {}
    popExit: Transition {}
    replaceEnter: Transition {}
    replaceExit: Transition {}
}
