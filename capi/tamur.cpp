#include <tamur/tamur.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "guarded.h"
#include "host/check.h"
#include "host/diff/model_diff.h"
#include "host/rows/layout.h"
#include "host_text.h"
#include "model.h"
#include "tools/tamur/command_line.h"
#include "tools/tamur/diff/json.h"
#include "tools/tamur/process.h"

namespace tamur::capi {
namespace {

// Of each code so many findings are kept; a file of a gigabyte may have one in each line.
constexpr std::size_t kKeptFindings = 10000;

[[noreturn]] void Refuse(const host::Finding& why)
{
    throw Failure(TAMUR_REFUSED, TextOf(why, host::Language::kEnglish), IdOf(why.code));
}

std::unique_ptr<TamurModel> Open(const std::string& path, bool checks)
{
    auto model = std::make_unique<TamurModel>();
    if (checks) {
        model->findings.emplace(kKeptFindings);
        model->imported = host::CheckFile(path, *model->findings).imported;
    } else {
        model->imported = host::ImportFile(path);
    }
    if (model->imported.refusal) Refuse(*model->imported.refusal);
    if (model->imported.readError) Refuse(*model->imported.readError);
    return model;
}

// The rows and blocks stay where they are from here on.
void Describe(OwnedTable& table)
{
    const host::RowBlocks& blocks = table.held.Blocks();
    const host::TextBlock& texts = blocks.Texts();
    table.rows = table.held.Rows();
    table.count = table.held.Count();
    table.row_size = table.held.RowSize();
    table.reals = blocks.Reals().data();
    table.real_count = blocks.Reals().size();
    table.integers = blocks.Integers().data();
    table.integer_count = blocks.Integers().size();
    table.texts = texts.Bytes().data();
    table.text_bytes = texts.Bytes().size();
    table.text_starts = texts.Starts().data();
    table.text_count = texts.Size();
}

void Add(int32_t number, const TamurModel& model, host::RowTable& table)
{
    const bool isOfFindings = number == TAMUR_FINDINGS || number == TAMUR_FINDING_COUNTS;
    Need(!isOfFindings || model.findings.has_value(), "the model was opened without a check");
    if (number == TAMUR_FINDINGS) return AddFindings(*model.findings, table);
    if (number == TAMUR_FINDING_COUNTS) return AddFindingCounts(*model.findings, table);
    Need(AddRows(number, model.imported, table), "there is no table of that number");
}

std::string DiffText(const TamurModel& before, const TamurModel& after, double tolerance)
{
    const tool::DiffResult result{
        .before = {"before", before.imported.version},
        .after = {"after", after.imported.version},
        .model = host::Compare(*before.imported.reader, *after.imported.reader, tolerance)};
    std::ostringstream out;
    out.exceptions(std::ios_base::badbit | std::ios_base::failbit);
    WriteDiffJson(result, out);
    return std::move(out).str();
}

// One lock when both are the same model; always the same first, whoever asks.
class Locked {
 public:
    Locked(TamurModel& a, TamurModel& b) : first_(std::min(&a, &b, std::less<>())->mutex)
    {
        if (&a != &b) second_ = std::unique_lock(std::max(&a, &b, std::less<>())->mutex);
    }

 private:
    std::unique_lock<std::mutex> first_, second_;
};

}  // namespace
}  // namespace tamur::capi

using namespace tamur;
using namespace tamur::capi;

const char* TamurVersion(void)
{
    return TAMUR_VERSION;
}

const char* TamurLayout(void)
{
    try {
        static const std::string layout = host::RowLayout();
        return layout.c_str();
    } catch (...) {
        return "";
    }
}

int32_t TamurOpen(const char* path, int32_t check, TamurModel** model, TamurError* error)
{
    return Guarded(error, [&] {
        Need(path != nullptr && model != nullptr, "no path, or no place for the model");
        *model = nullptr;
        *model = Open(path, check != 0).release();
    });
}

void TamurClose(TamurModel* model)
{
    delete model;
}

int32_t TamurGetTable(TamurModel* model, int32_t number, const TamurTable** table,
                      TamurError* error)
{
    return Guarded(error, [&] {
        Need(model != nullptr && table != nullptr, "no model, or no place for the table");
        *table = nullptr;
        auto made = std::make_unique<OwnedTable>();
        {
            const std::lock_guard lock(model->mutex);
            Add(number, *model, made->held);
        }
        Describe(*made);
        *table = made.release();
    });
}

void TamurReleaseTable(const TamurTable* table)
{
    delete static_cast<const OwnedTable*>(table);
}

int32_t TamurDiff(TamurModel* before, TamurModel* after, double tolerance, char** json,
                  TamurError* error)
{
    return Guarded(error, [&] {
        Need(before != nullptr && after != nullptr && json != nullptr,
             "no models, or no place for the text");
        Need(tolerance >= 0 && !std::isinf(tolerance), "the tolerance is not 0 or more");
        *json = nullptr;
        const Locked locked(*before, *after);
        *json = TextForHost(DiffText(*before, *after, tolerance));
    });
}

void TamurReleaseText(char* text)
{
    std::free(text);
}

int32_t TamurRunTool(int32_t count, const char* const* arguments)
{
    int32_t code = 0;
    TamurError error;
    const int32_t status = Guarded(&error, [&] {
        Need(count >= 0 && (count == 0 || arguments != nullptr), "no arguments");
        tool::PrepareStreams();
        code = tool::RunCommandLine(std::vector<std::string>(arguments, arguments + count),
                                    tool::StandardConsole());
    });
    constexpr int32_t kTrouble = 2;
    return status == TAMUR_OK ? code : kTrouble;
}
