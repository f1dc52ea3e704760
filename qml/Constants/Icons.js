.pragma library
// Glyphs of the Material Icons font (Debian's fonts-material-design-icons-iconfont)
// by the role they play on the screens.

var fontFamily = "Material Icons"
var back = "\ue5c4"        // arrow_back
var home = "\ue88a"        // home
var settings = "\ue8b8"    // settings
var logs = "\ue85d"        // assignment
var methods = "\ue896"     // list
var burette = "\ue3b8"     // colorize (a dropper)
var measure = "\ue9e4"     // speed (a gauge)
var info = "\ue88e"        // info
var close = "\ue5cd"       // close
var warning = "\ue002"     // warning
var done = "\ue86c"        // check_circle
var error = "\ue000"       // error
var usb = "\ue1e0"         // usb
var chevronRight = "\ue5cc" // chevron_right
var arrowUp = "\ue5d8"     // arrow_upward
var arrowDown = "\ue5db"   // arrow_downward
var radioOn = "\ue837"     // radio_button_checked
var radioOff = "\ue836"    // radio_button_unchecked
var edit = "\ue3c9"       // edit (a pencil)
var timer = "\ue425"       // timer (a reading still settling)
var lock = "\ue897"        // lock (a method with a password)
var bin = "\ue872"         // delete (a recycle bin)
var print = "\ue8ad"       // print
var upload = "\ue2c6"      // file_upload (export to the disk)
var download = "\ue2c4"    // file_download (import from the disk)
var checked = "\ue834"     // check_box
var unchecked = "\ue835"   // check_box_outline_blank
