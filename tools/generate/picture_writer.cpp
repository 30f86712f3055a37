#include "pictures.h"
#include "writers.h"

namespace tarn::generate {

Files write_pictures() {
    return {{"frame.svg", draw::frame()},
            {"state_area.svg", draw::state_area()},
            {"bundle.svg", draw::bundle()},
            {"nesting.svg", draw::nesting(true)}};
}

}  // namespace tarn::generate
