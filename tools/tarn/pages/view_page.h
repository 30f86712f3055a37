// A page that shows the frames of one file, or of two files side by side.
#pragma once

#include <string>
#include <vector>

namespace tarn::tool {

struct ViewedFile {
    std::string name;    // as people are to see it
    std::string frames;  // back to back
    std::string broken;  // set by view_page: where they break, and why
};

std::string view_page(std::vector<ViewedFile> &files);

}  // namespace tarn::tool
