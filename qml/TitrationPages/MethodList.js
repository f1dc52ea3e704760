.pragma library
// The arithmetic of the method list: rows swiped away but not yet deleted,
// the selection that follows them, the ten places of the library and the
// check marks of an installation.

var maxMethods = 10

// Places left in the library.
function freeSlots(methodCount) {
    return Math.max(0, maxMethods - methodCount)
}

// The row a tap on `index` means once the rows in `deleted` are gone: one
// down for each deleted row above it; -1 for a deleted row.
function indexAfterDeletions(index, deleted) {
    if (deleted.indexOf(index) >= 0)
        return -1
    var shift = 0
    for (var i = 0; i < deleted.length; ++i) {
        if (deleted[i] < index)
            ++shift
    }
    return index - shift
}

// The list's selection after its rows in `deleted` went: the same method
// on its new row, or none (-1) when the selected method went or no row is
// left. A selection is never left on a row that is gone.
function selectionAfterDeletions(current, deleted, rowsLeft) {
    if (current < 0)
        return -1
    var moved = indexAfterDeletions(current, deleted)
    return moved >= 0 && moved < rowsLeft ? moved : -1
}

// An installation's choice: `slots` ids, 0 for a free place. Checking fills
// the first free place while fewer than `free` are taken (else the check is
// refused: false); unchecking frees the id's place. Answers whether the
// mark stands.
function toggleInstall(slots, id, checked, free) {
    var at = slots.indexOf(id)
    if (!checked) {
        if (at >= 0)
            slots[at] = 0
        return false
    }
    if (at >= 0)
        return true
    var taken = slots.filter(function (x) { return x !== 0 }).length
    var place = slots.indexOf(0)
    if (taken >= free || place < 0)
        return false
    slots[place] = id
    return true
}

function emptySlots() {
    var a = []
    for (var i = 0; i < maxMethods; ++i)
        a.push(0)
    return a
}

function chosen(slots) {
    return slots.filter(function (x) { return x !== 0 })
}
