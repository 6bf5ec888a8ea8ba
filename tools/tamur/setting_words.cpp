#include "setting_words.h"

#include <TAMURReader.h>

namespace tamur::tool {
namespace {

using host::Name;

constexpr Name kPlane = {{"plane frame", "plan"}};
constexpr Name kGrid = {{"grid", "grille"}};
constexpr Name kSpace = {{"space frame", "spatial"}};
constexpr Name kYes = {{"yes", "oui"}};
constexpr Name kNo = {{"no", "non"}};

}  // namespace

std::string_view WorkSpaceWords(long long workSpace, host::Language language)
{
    const Name& name = workSpace == TMRWS_PLAN     ? kPlane
                       : workSpace == TMRWS_GRILLE ? kGrid
                                                   : kSpace;
    return name.In(language);
}

std::string_view YesOrNo(bool isYes, host::Language language)
{
    return (isYes ? kYes : kNo).In(language);
}

}  // namespace tamur::tool
