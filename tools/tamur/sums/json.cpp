#include "json.h"

#include "section_names.h"

namespace tamur::tool {

Json JsonOf(const host::Sums& sums, const std::vector<std::string>& sections)
{
    Json json = {{"cases", Json::array()},
                 {"masses", sums.masses},
                 {"lengths", Json::array()},
                 {"areas", Json::array()}};
    for (const host::CaseSum& sum : sums.cases) {
        Json frames = Json::array();
        for (const auto& [frame, forces] : sum.byFrame) {
            frames.push_back({{"frame", frame}, {"forces", forces}});
        }
        json["cases"].push_back({{"number", sum.number},
                                 {"title", sum.title},
                                 {"loads", sum.loads},
                                 {"frames", std::move(frames)}});
    }
    for (const auto& [ends, length] : sums.lengths) {
        json["lengths"].push_back({{"section", SectionNames(ends, sections)}, {"length", length}});
    }
    for (const auto& [thickness, area] : sums.areas) {
        json["areas"].push_back({{"thickness", thickness}, {"area", area}});
    }
    return json;
}

}  // namespace tamur::tool
