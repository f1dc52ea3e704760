// Qt Quick Test runner of the screens' JavaScript helpers.
#include <QtQuickTest/quicktest.h>

QUICK_TEST_MAIN(helpers)
