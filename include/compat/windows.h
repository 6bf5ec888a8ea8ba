// What the generated TAMURReader.h needs of the Windows headers, for hosts on other systems.
// Same names, widths and values as there; OLECHAR is a 16-bit char16_t on every system.
// Only on the include path where the real headers do not exist.
#ifndef TAMUR_COMPAT_WINDOWS_H
#define TAMUR_COMPAT_WINDOWS_H

#include <stddef.h>
#include <stdint.h>
#include <string.h>
#ifndef __cplusplus
#include <uchar.h>
#endif

typedef void* LPVOID;
typedef int32_t BOOL;
typedef int32_t LONG;
typedef uint32_t ULONG;
typedef uint32_t DWORD;
typedef uint32_t UINT;
typedef int32_t HRESULT;
typedef char16_t OLECHAR;
typedef OLECHAR* BSTR;

#define TRUE 1
#define FALSE 0

#define S_OK ((HRESULT)0)
#define S_FALSE ((HRESULT)1)
#define E_NOTIMPL ((HRESULT)0x80004001u)
#define E_NOINTERFACE ((HRESULT)0x80004002u)
#define E_POINTER ((HRESULT)0x80004003u)
#define E_FAIL ((HRESULT)0x80004005u)
#define E_UNEXPECTED ((HRESULT)0x8000FFFFu)
#define E_OUTOFMEMORY ((HRESULT)0x8007000Eu)
#define E_INVALIDARG ((HRESULT)0x80070057u)
#define CLASS_E_NOAGGREGATION ((HRESULT)0x80040110u)
#define CLASS_E_CLASSNOTAVAILABLE ((HRESULT)0x80040111u)
#define SUCCEEDED(hr) ((HRESULT)(hr) >= 0)
#define FAILED(hr) ((HRESULT)(hr) < 0)

#define STDMETHODCALLTYPE
#define STDAPICALLTYPE
#define __RPC_USER
#define FORCEINLINE inline
#define CONST_VTBL
#define OLESTR(text) u##text

#ifdef __cplusplus
#define EXTERN_C extern "C"
#else
#define EXTERN_C extern
#endif
#define TAMUR_EXPORTED EXTERN_C __attribute__((visibility("default")))
#define STDAPI TAMUR_EXPORTED HRESULT STDAPICALLTYPE
#define STDAPI_(type) TAMUR_EXPORTED type STDAPICALLTYPE

#define interface struct
#define DECLSPEC_UUID(text)
#define DECLSPEC_NOVTABLE
#define MIDL_INTERFACE(text) struct
#define BEGIN_INTERFACE
#define END_INTERFACE

typedef struct GUID {
    uint32_t Data1;
    uint16_t Data2;
    uint16_t Data3;
    uint8_t Data4[8];
} GUID;
typedef GUID IID;
typedef GUID CLSID;

#ifdef __cplusplus
typedef const GUID& REFGUID;
typedef const IID& REFIID;
typedef const CLSID& REFCLSID;

inline bool operator==(REFGUID a, REFGUID b)
{
    return memcmp(&a, &b, sizeof(GUID)) == 0;
}
#if __cplusplus < 202002L
inline bool operator!=(REFGUID a, REFGUID b)
{
    return !(a == b);
}
#endif
inline int IsEqualGUID(REFGUID a, REFGUID b)
{
    return a == b;
}

#define DEFINE_GUID(name, l, w1, w2, b1, b2, b3, b4, b5, b6, b7, b8) \
    inline constexpr GUID name = {l, w1, w2, {b1, b2, b3, b4, b5, b6, b7, b8}}
#else
typedef const GUID* REFGUID;
typedef const IID* REFIID;
typedef const CLSID* REFCLSID;

static inline int IsEqualGUID(REFGUID a, REFGUID b)
{
    return memcmp(a, b, sizeof(GUID)) == 0;
}

#define DEFINE_GUID(name, l, w1, w2, b1, b2, b3, b4, b5, b6, b7, b8) \
    static const GUID name __attribute__((unused)) = {l, w1, w2, {b1, b2, b3, b4, b5, b6, b7, b8}}
#endif
#define IsEqualIID(a, b) IsEqualGUID(a, b)
#define IsEqualCLSID(a, b) IsEqualGUID(a, b)

DEFINE_GUID(IID_IUnknown, 0x00000000, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46);
DEFINE_GUID(IID_IClassFactory, 0x00000001, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46);
DEFINE_GUID(IID_ISupportErrorInfo, 0xDF0B3D60, 0x548F, 0x101B, 0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B,
            0xD1, 0x19);

#if defined(__cplusplus) && !defined(CINTERFACE)

struct IUnknown {
    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppvObject) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;
};

struct IClassFactory : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* pUnkOuter, REFIID riid,
                                                     void** ppvObject) = 0;
    virtual HRESULT STDMETHODCALLTYPE LockServer(BOOL fLock) = 0;
};

struct ISupportErrorInfo : public IUnknown {
    virtual HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID riid) = 0;
};

#else

typedef interface IUnknown IUnknown;
typedef struct IUnknownVtbl {
    HRESULT(STDMETHODCALLTYPE* QueryInterface)(IUnknown* This, REFIID riid, void** ppvObject);
    ULONG(STDMETHODCALLTYPE* AddRef)(IUnknown* This);
    ULONG(STDMETHODCALLTYPE* Release)(IUnknown* This);
} IUnknownVtbl;
interface IUnknown {
    CONST_VTBL IUnknownVtbl* lpVtbl;
};

typedef interface IClassFactory IClassFactory;
typedef struct IClassFactoryVtbl {
    HRESULT(STDMETHODCALLTYPE* QueryInterface)(IClassFactory* This, REFIID riid, void** ppvObject);
    ULONG(STDMETHODCALLTYPE* AddRef)(IClassFactory* This);
    ULONG(STDMETHODCALLTYPE* Release)(IClassFactory* This);
    HRESULT(STDMETHODCALLTYPE* CreateInstance)
    (IClassFactory* This, IUnknown* pUnkOuter, REFIID riid, void** ppvObject);
    HRESULT(STDMETHODCALLTYPE* LockServer)(IClassFactory* This, BOOL fLock);
} IClassFactoryVtbl;
interface IClassFactory {
    CONST_VTBL IClassFactoryVtbl* lpVtbl;
};

#endif

// The functions that libTAMURReader.so exports.

// Strings: UTF-16 with a 32-bit byte length before the first character and a NUL after the
// last. Null text gives null (SysAllocString) or undefined content (the others); null is
// returned when memory is exhausted or the length is not representable.
TAMUR_EXPORTED BSTR SysAllocString(const OLECHAR* text);
TAMUR_EXPORTED BSTR SysAllocStringLen(const OLECHAR* text, UINT length);
TAMUR_EXPORTED BSTR SysAllocStringByteLen(const char* bytes, UINT byteLength);
TAMUR_EXPORTED UINT SysStringLen(BSTR text);      // in characters, 0 for null
TAMUR_EXPORTED UINT SysStringByteLen(BSTR text);  // in bytes, 0 for null
TAMUR_EXPORTED void SysFreeString(BSTR text);

// Task memory: the blocks of arrays in records. A size of 0 still gives a block.
TAMUR_EXPORTED LPVOID CoTaskMemAlloc(size_t size);
TAMUR_EXPORTED LPVOID CoTaskMemRealloc(LPVOID block, size_t size);  // size 0 frees and gives null
TAMUR_EXPORTED void CoTaskMemFree(LPVOID block);

// Where message boxes go. The handler gets the text, the caption, the style (0: one OK button)
// and the context given here, and returns the pressed button (1: OK). Null restores the
// default, which writes caption and text to standard error. Set it before any import runs.
typedef int (*TamurMessageBoxHandler)(const OLECHAR* text, const OLECHAR* caption, UINT style,
                                      void* context);
TAMUR_EXPORTED void TamurSetMessageBoxHandler(TamurMessageBoxHandler handler, void* context);

#endif
