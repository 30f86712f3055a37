// Reads messages from JSON, one after the other.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/tarn/formats/item.h"
#include "tools/tarn/formats/json_texts.h"

namespace tarn::tool {

class JsonReader {
public:
    // The handles and the stream must outlive it.
    JsonReader(const Handles &handles, ByteStream &stream, bool lenient)
        : handles_(handles), origin_(stream.name()), texts_(stream), lenient_(lenient) {}

    // The next item; none at the end. Throws an Invalid with all problems of an item that cannot be read; the next call
    // reads the one after it. After a syntax error there is none.
    std::optional<Item> next();

private:
    void add_elements(const JsonValue &list);

    const Handles &handles_;
    const std::string origin_;
    JsonTexts texts_;
    std::vector<JsonValue> pending_;  // the next one last
    bool lenient_;
};

}  // namespace tarn::tool
