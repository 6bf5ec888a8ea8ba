#include "host/file/imported_file.h"

#include <tamur/utf8.h>

#include <new>

#include "host/file/import_audit.h"
#include "reader/observed_reader.h"

namespace tamur::host {

ImportedFile ImportFile(const std::string& utf8Path, Findings& findings)
{
    ImportAudit audit(findings);
    ImportedFile imported;
    const ComPtr<ITAMURStructureReader> reader = NewObservedReader(audit);
    const String name(FromUtf8(utf8Path).c_str());
    if (reader->Import(name.Get()) == E_OUTOFMEMORY) throw std::bad_alloc();
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

}  // namespace tamur::host
