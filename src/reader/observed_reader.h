// A reader whose imports are followed, for hosts that have the component linked in.
#pragma once

#include <TAMURReader.h>
#include <tamur/com_ptr.h>

#include "import/observer.h"
#include "model/model.h"

namespace tamur {

// Shows no message box: the observer, which must outlive the imports, gets the refusals. Throws
// std::bad_alloc.
[[nodiscard]] ComPtr<ITAMURStructureReader> NewObservedReader(ImportObserver& observer);

// The reader, which NewObservedReader made, may outlive its observer from here on, further imports
// included.
void ForgetObserver(ITAMURStructureReader& reader);

// What was imported into the reader, which NewObservedReader made, without the copies of records.
[[nodiscard]] const Model& ModelOf(const ITAMURStructureReader& reader);

}  // namespace tamur
