#include "accessors/views.h"

#include <algorithm>

namespace tamur {

const Model& NoModel()
{
    static const Model model;
    return model;
}

CasesCopy::CasesCopy(std::shared_ptr<const Model> model) : model_(std::move(model))
{
    const std::vector<LoadCase>& all = model_->cases.Cases();
    const auto isUsable = [](const LoadCase& loadCase) {
        return loadCase.type != case_type::kDisabled;
    };
    cases_.reserve(static_cast<std::size_t>(std::count_if(all.begin(), all.end(), isUsable)));
    std::copy_if(all.begin(), all.end(), std::back_inserter(cases_), isUsable);
}

}  // namespace tamur
