// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/lua/macro_files.h"
#include "adapters/lua/value.h"
#include "automation/error.h"

namespace hx::lua {

struct Machine;

/// Name and version of the library, "Lua 5.4.4".
[[nodiscard]] std::string libraryVersion();

/// A macro ended with an error that it did not catch, or was stopped.
class MacroError : public std::exception {
  public:
    MacroError(std::string message, std::string traceback, bool stopped = false)
        : message_(std::move(message)), traceback_(std::move(traceback)), stopped_(stopped) {}
    [[nodiscard]] bool stopped() const noexcept { return stopped_; }
    [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }
    /// Where it happened, "stack traceback:" and a line a call; empty when the macro could not be read.
    [[nodiscard]] const std::string& traceback() const noexcept { return traceback_; }

  private:
    std::string message_, traceback_;
    bool stopped_;
};

/// A macro has taken all the memory that it may take.
class OutOfMemory : public std::bad_alloc {
  public:
    [[nodiscard]] const char* what() const noexcept override { return "not enough memory"; }
};

struct EngineOptions {
    /// Takes what the macro prints.
    std::function<void(std::string_view)> print;
    /// The files that the macro may use when it is not trusted.
    MacroFiles files{};
    /// Gives the macro all of Lua's libraries, other files and processes too.
    bool trusted = false;
    /// Asked every some thousand steps of a macro and at each call of an object or function of C++, so it must be
    /// quick; it may do other work now and then. True ends the macro, which cannot prevent that.
    std::function<bool()> stopRequested{};
    /// How much memory a macro may take, in bytes; 0: no limit. What the program holds for it counts too.
    std::size_t memoryLimit = std::size_t{1} << 30U;
};

/// Runs macros in Lua 5.4. Objects are reached by the names of their member tables, ignoring case; an Error is a table
/// with the fields number and description. Global `null` is the database's null.
class Engine {
  public:
    using Native = std::function<Value(Values)>;

    explicit Engine(EngineOptions options);
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Puts a function into a global table, which is made when it is missing.
    void define(const std::string& table, const std::string& name, Native function);
    /// A global that is asked for whenever the macro reads it.
    void defineGlobal(const std::string& name, std::function<automation::Variant()> read);
    /// Runs a macro's text; `name` stands in its messages, `arguments` are `...` and the global `arg`. Throws
    /// MacroError.
    void run(const std::string& text, const std::string& name, const std::vector<std::string>& arguments = {});

    /// Lets the macro fail with this error once the call returns that it is running: for what the macro has answered
    /// wrongly while functions of C++ lie between.
    void fail(const automation::Error& error);
    /// Asks EngineOptions::stopRequested: for a function of C++ that takes long. When it says yes, the macro is stopped
    /// once that function returns.
    [[nodiscard]] bool stopRequested() noexcept;
    /// For a function of C++ that takes so many bytes for the macro, until it returns: throws OutOfMemory beyond the
    /// limit.
    void charge(std::size_t bytes);
    /// For a function of C++ that takes long: whether the program has come to hold more for the macro than the limit
    /// lets it.
    [[nodiscard]] bool isFull();
    /// Whether the macro is being stopped, or a function of it has failed inside a call that has not returned yet: the
    /// macro is then not to be asked any more.
    [[nodiscard]] bool failing() const noexcept;

  private:
    std::shared_ptr<Machine> machine_;
};

}  // namespace hx::lua
