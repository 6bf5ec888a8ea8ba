#include "host/view/page.h"

#include "host/check.h"
#include "host/view/compressed.h"
#include "host/view/template.h"

namespace tamur::host::view {
namespace {

// Where the template has place for the model: once, in an element of its own.
constexpr std::string_view kPlace = "@TAMUR-MODEL@";

}  // namespace

std::string PageOf(const ViewedModel& model)
{
    return PageAround(PackModel(model));
}

PageOfAFile PageOfFile(const std::string& utf8Path, const std::string& name, Findings& findings)
{
    Structure structure;
    const Checked checked = CheckFile(utf8Path, findings, &structure);
    const ImportedFile& file = checked.imported;
    if (file.refusal) return {.html = {}, .trouble = file.refusal};
    if (file.readError) return {.html = {}, .trouble = file.readError};
    return {.html = PageOf({name, file, structure, findings}), .trouble = {}};
}

std::string PageAround(std::string_view packed)
{
    const std::string_view page = PageTemplate();
    const std::size_t place = page.find(kPlace);
    std::string out(page.substr(0, place));
    AppendBase64(out, Deflated(packed));
    return out.append(page.substr(place + kPlace.size()));
}

std::string_view PageBeginning()
{
    return PageTemplate().substr(0, PageTemplate().find('\n'));
}

}  // namespace tamur::host::view
