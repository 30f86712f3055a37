/* All that Python loads: the library, and of the runtime what opens handles and documents. */
#include <lumo_ui_tarn.h>
#include <mirk_platform.h>
