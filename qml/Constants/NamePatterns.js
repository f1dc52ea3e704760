.pragma library
// Allowed text of names typed on the screens. Both alternatives are anchored
// at both ends: a name is either all Latin letters, digits and the marks
// allowed, or all CJK ideographs; an empty text is no name.

function userName() {
    return /^(?:[A-Za-z0-9 \-_.\u00C0-\u00D6\u00D8-\u00F6\u00F8-\u00FF]+|[一-龠]+)$/
}

// Identifiers (sample and titrant ids): English allows word characters and
// a few marks; other languages also accented letters or CJK ideographs.
function identifier(language) {
    if (language === "English")
        return /^[\w.\- ?  \-_]+$/
    return /^(?:[\w.\- ?  \-_.\u00C0-\u00D6\u00D8-\u00F6\u00F8-\u00FF]+|[一-龠]+)$/
}
