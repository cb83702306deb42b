#pragma once

#include <cups/cups.h>
#include <dlfcn.h>

namespace Orvo::Runtime {

/// CUPS, loaded when it is first needed: with the libraries that it needs itself it would be a
/// third of a program's start. It stays loaded.
struct CupsLibrary {
    template <class Function>
    Function* find(const char* name) {
        void* const found = handle == nullptr ? nullptr : ::dlsym(handle, name);
        if (found == nullptr) isHere = false;
        return reinterpret_cast<Function*>(found);
    }

    void* handle = ::dlopen("libcups.so.2", RTLD_NOW | RTLD_LOCAL);
    bool isHere = true;  ///< otherwise none of the functions may be called

// NOLINTNEXTLINE(*-macro-*): a name as such, as text and for its type
#define ORVO_IN_CUPS(name) decltype(::name)* name = find<decltype(::name)>(#name)
    ORVO_IN_CUPS(cupsEncryption);
    ORVO_IN_CUPS(cupsServer);
    ORVO_IN_CUPS(httpClearFields);
    ORVO_IN_CUPS(httpClose);
    ORVO_IN_CUPS(httpConnect2);
    ORVO_IN_CUPS(httpEncryption);
    ORVO_IN_CUPS(httpGetFd);
    ORVO_IN_CUPS(httpPost);
    ORVO_IN_CUPS(httpRead2);
    ORVO_IN_CUPS(httpSeparateURI);
    ORVO_IN_CUPS(httpSetField);
    ORVO_IN_CUPS(httpSetLength);
    ORVO_IN_CUPS(httpUpdate);
    ORVO_IN_CUPS(ippAddStrings);
    ORVO_IN_CUPS(ippDelete);
    ORVO_IN_CUPS(ippLength);
    ORVO_IN_CUPS(ippNewRequest);
    ORVO_IN_CUPS(ippPort);
    ORVO_IN_CUPS(ippWrite);
#undef ORVO_IN_CUPS
};

inline const CupsLibrary& cups() {
    static const CupsLibrary kLibrary;
    return kLibrary;
}

}  // namespace Orvo::Runtime
