import QtQuick 2.12

// The pre-check of a method picked in the Methods section: Standardize is
// always offered, and the titrant's nominal concentration stands in while
// the titrant has not been standardised.
TitrationPreCheckScreen {
    inMethodStack: true
}
