// A block that imports with a hook that refuses boxes.
#include <TAMURReader.h>

LRESULT CALLBACK RefuseDialogs(int code, WPARAM window, LPARAM details);

HRESULT Import(ITAMURStructureReader* reader, BSTR file)
{
    BLOCK
    return result;
}
