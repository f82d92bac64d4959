// SPDX-License-Identifier: MIT
#include "automation/error.h"

#include <new>
#include <stdexcept>

namespace hx::automation {

namespace {

constexpr Sentence outOfMemory{"There is not enough memory.", "Der Speicher reicht nicht aus."};
constexpr Sentence unknown{"Unknown error", "Unbekannter Fehler"};

}  // namespace

Error caughtError() {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {errOutOfMemory, outOfMemory};
    } catch (const std::length_error&) {  // more than any memory holds
        return {errOutOfMemory, outOfMemory};
    } catch (const std::exception& error) {
        return {errFail, error.what()};
    } catch (...) {
        return {errFail, unknown};
    }
}

}  // namespace hx::automation
