.pragma library
// Named colours of the screens.

var whiteColor = "#ffffff"
var summerSkyColor = "#2EA2EC"
var zirconColor = "#eceeee"
var orangepeelColor = "#f79905"   // the mark of a refused field
var redColor = "red"
var deeptangaroaColor = "#1f2d36" // the shell's dark
var lightelephantColor = "#273740"
var whiteSmokeColor = "#f6f6f6"
var slateColor = "#5b6b75"        // secondary text on light ground
var lineColor = "#d5dadd"         // separators on light ground
var paleSkyColor = "#cfe3f5"      // secondary text on dark ground
var pressedColor = "#1b86c9"      // a blue button held down
var greenColor = "#3aa655"
