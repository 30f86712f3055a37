/* The headers that the Python package uses: the library, and the reference runtime for handles and XML documents. */
#include <lumo_ui_tarn.h>
#include <mirk_platform.h>
