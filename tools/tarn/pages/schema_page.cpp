#include "tools/tarn/pages/schema_page.h"

#include <nlohmann/json.hpp>

#include "pictures.h"
#include "schema_body.h"
#include "schema_script.h"
#include "tools/tarn/formats/schema.h"
#include "tools/tarn/pages/page.h"

namespace tarn::tool {

std::string schema_page() {
    const nlohmann::ordered_json data{{"schema", schema_json()}, {"drawing", draw::nesting(false)}};
    return page_text({"Schema of tarn", schema_body, schema_script, schema_script_sha256, data});
}

}  // namespace tarn::tool
