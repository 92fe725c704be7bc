#include <QtQuickTest/quicktest.h>

#include "Preparacion.h"

QUICK_TEST_MAIN_WITH_SETUP(Vistas, zorve::vistas::Preparacion)
