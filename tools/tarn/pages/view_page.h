// A page that shows the frames of one file, or of two files side by side.
#pragma once

#include <string>
#include <vector>

namespace tarn::tool {

struct ViewedFile {
    std::string name;    // for display
    std::string frames;  // concatenated
    std::string broken;  // set by view_page: offset and reason of the first error
};

std::string view_page(std::vector<ViewedFile> &files);

}  // namespace tarn::tool
