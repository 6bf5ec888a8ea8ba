// No exception leaves the library.
#pragma once

#include <tamur/tamur.h>

#include <exception>
#include <new>
#include <stdexcept>
#include <string_view>

namespace tamur::capi {

// Why a call fails that is no accident: the answer is its status.
class Failure : public std::runtime_error {
 public:
    Failure(int32_t status, const std::string& why, std::string code = {})
        : std::runtime_error(why), status_(status), code_(std::move(code))
    {
    }

    [[nodiscard]] int32_t Status() const { return status_; }
    [[nodiscard]] const std::string& Code() const { return code_; }

 private:
    int32_t status_;
    std::string code_;
};

inline void Need(bool isGiven, const char* what)
{
    if (!isGiven) throw Failure(TAMUR_WRONG_CALL, what);
}

// Fills in what the caller has room for; takes no memory. `error` may be null.
int32_t Fail(TamurError* error, int32_t status, std::string_view why, std::string_view code = {});

template <class Work>
int32_t Guarded(TamurError* error, Work&& work) noexcept
{
    try {
        work();
        return TAMUR_OK;
    } catch (const Failure& failure) {
        return Fail(error, failure.Status(), failure.what(), failure.Code());
    } catch (const std::bad_alloc&) {
        return Fail(error, TAMUR_NO_MEMORY, "not enough memory");
    } catch (const std::length_error&) {
        return Fail(error, TAMUR_NO_MEMORY, "more than memory can hold");
    } catch (const std::exception& other) {
        return Fail(error, TAMUR_FAILED, other.what());
    } catch (...) {
        return Fail(error, TAMUR_FAILED, "an error without a name");
    }
}

}  // namespace tamur::capi
