// What the rules say of a model, as tests compare it.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "host/rules/check_model.h"
#include "support/model_text.h"

namespace tamur::host {

inline std::vector<Finding> ModelFindings(ITAMURStructureReader& reader,
                                          const RecordLines& lines = {})
{
    Findings findings;
    CheckModel(reader, lines, findings);
    return findings.InFileOrder();
}
inline std::vector<Finding> ModelFindings(std::string_view text)
{
    return ModelFindings(*test::Imported(text));
}

// "TMR407 bar 12: it crosses bar 13 ...", sorted.
inline std::vector<std::string> TextsOf(const std::vector<Finding>& findings)
{
    std::vector<std::string> texts;
    for (const Finding& finding : findings) {
        texts.push_back(IdOf(finding.code) + " " + TextOf(finding, Language::kEnglish));
    }
    std::sort(texts.begin(), texts.end());
    return texts;
}

}  // namespace tamur::host
