.pragma library
// Number display helpers of the screens.

// n rounded to `sig` significant figures; 0 for n not above 0. A result whose
// text is shorter than `sig` characters is padded with zeros by toPrecision.
function sigFigs(n, sig) {
    if (!(n > 0))
        return 0
    var mult = Math.pow(10, sig - Math.floor(Math.log(n) / Math.LN10) - 1)
    var x = Math.round(n * mult) / mult
    if (String(x).length < sig)
        return x.toPrecision(sig)
    return x
}

// Fixed `dec` decimals for small values, `sig` significant figures for the
// others, and whole numbers once they need more than `sig` digits.
function sigFigsDec(n, sig, dec) {
    if (Math.abs(n) < Math.pow(10, sig - dec))
        return n.toFixed(dec)
    var x = n.toPrecision(sig)
    if (Math.abs(x) >= Math.pow(10, sig))
        return Math.round(x)
    return x
}

// Decimals of a resolution: 0 for a whole number, else the place of the
// first "1" after the point, and 2 for anything finer than 0.001.
function countDecimal(resolution) {
    var r = Number(resolution)
    if (!(r > 0) || Math.floor(r) === r)
        return 0
    var text = r.toFixed(6).split(".")[1]
    var place = text.indexOf("1") + 1
    return place > 0 && place <= 3 ? place : 2
}

// A resolution (0.1, 0.01, 0.001) as a number of decimals.
function convertFloatResToInt(resolutionAsFloat) {
    if (resolutionAsFloat > 0.09 && resolutionAsFloat < 0.11)
        return 1
    if (resolutionAsFloat > 0.009 && resolutionAsFloat < 0.011)
        return 2
    return 3
}

// The number's text with "0" in front up to targetLength characters.
function leftPad(number, targetLength) {
    var output = String(number)
    while (output.length < targetLength)
        output = "0" + output
    return output
}
