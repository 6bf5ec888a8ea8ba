#include "host/file/imported_file.h"

#include <tamur/utf8.h>

#include <new>

#include "host/file/import_audit.h"
#include "platform/platform.h"
#include "reader/observed_reader.h"

namespace tamur::host {

namespace {

// The system gets names in its code page, or as UTF-8: another file may have the name that comes
// out.
bool SurvivesConversion(const std::string& utf8Path)
{
    const std::string narrow = platform::NarrowPath(FromUtf8(utf8Path).c_str());
    return ToUtf8(platform::WidenPath(narrow)) == utf8Path;
}

ImportedFile Import(const std::string& utf8Path, Findings& findings, bool walksLines)
{
    ImportAudit audit(findings, walksLines);
    ImportedFile imported;
    if (!SurvivesConversion(utf8Path)) {
        imported.refusal = Finding{.code = Code::kNameNotConvertible};
        findings.Add(*imported.refusal);
        return imported;
    }
    const ComPtr<ITAMURStructureReader> reader = NewObservedReader(audit);
    const String name(FromUtf8(utf8Path).c_str());
    if (reader->Import(name.Get()) == E_OUTOFMEMORY) throw std::bad_alloc();
    ForgetObserver(*reader.Get());
    audit.Finish(utf8Path);
    imported.refusal = audit.WhyRefused();
    if (!imported.refusal) imported.reader = reader;
    imported.readError = audit.WhyNotWhole();
    imported.version = audit.Version();
    imported.servicePack = audit.ServicePack();
    imported.balance = audit.TheBalance();
    imported.lines = std::move(audit.Lines());
    return imported;
}

}  // namespace

ImportedFile ImportFile(const std::string& utf8Path, Findings& findings)
{
    return Import(utf8Path, findings, true);
}

ImportedFile ImportFile(const std::string& utf8Path)
{
    Findings findings(0);
    return Import(utf8Path, findings, false);
}

}  // namespace tamur::host
