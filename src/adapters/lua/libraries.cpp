// SPDX-License-Identifier: MIT
#include "adapters/lua/libraries.h"

#include <array>
#include <string>

#include "adapters/lua/call_original.h"
#include "adapters/lua/machine.h"
#include "adapters/lua/protect.h"
#include "adapters/lua/stack.h"
#include "adapters/lua/stop.h"
#include "adapters/lua/threads.h"
#include "automation/error.h"
#include "automation/text.h"

namespace hx::lua {

using automation::Error;

namespace {

constexpr int modeArgument = 3;  // of load

std::string shownText(lua_State* state, int index) {
    lua_pushvalue(state, index);
    protect(state, 1, 1, [](lua_State* inner) {
        luaL_tolstring(inner, 1, nullptr);
        return 1;
    });
    std::string text = textAt(state, -1);
    lua_pop(state, 1);
    return text;
}

std::string joined(lua_State* state, std::string_view separator) {
    std::string line;
    const int count = lua_gettop(state);
    for (int i = 1; i <= count; ++i) {
        if (i > 1) line += separator;
        line += shownText(state, i);
    }
    return line;
}

int print(lua_State* state) {
    Machine::of(state).options.print(joined(state, "\t") + "\n");
    return 0;
}

int write(lua_State* state) {
    Machine::of(state).options.print(joined(state, ""));
    return 0;
}

void replaceText(lua_State* state, int index, const std::string& text) {
    give(state, text);
    lua_replace(state, index);
}

int openFile(lua_State* state) {
    const MacroFiles& files = Machine::of(state).options.files;
    const std::string name = textAt(state, 1);
    const bool reads = lua_type(state, 2) != LUA_TSTRING || textAt(state, 2) == "r" || textAt(state, 2) == "rb";
    replaceText(state, 1, reads ? files.toRead(name) : files.toWrite(name));
    return callOriginal(state);
}

int readLines(lua_State* state) {
    replaceText(state, 1, Machine::of(state).options.files.toRead(textAt(state, 1)));
    return callOriginal(state);
}

// Precompiled code is not checked by Lua and can do anything.
int loadText(lua_State* state) {
    if (lua_gettop(state) < modeArgument) lua_settop(state, modeArgument);
    replaceText(state, modeArgument, "t");
    return callOriginal(state);
}

void openPlain(lua_State* state) {
    struct Library {
        const char* name;
        lua_CFunction open;
    };
    static constexpr Library libraries[] = {{LUA_GNAME, luaopen_base},        {LUA_TABLIBNAME, luaopen_table},
                                            {LUA_STRLIBNAME, luaopen_string}, {LUA_MATHLIBNAME, luaopen_math},
                                            {LUA_UTF8LIBNAME, luaopen_utf8},  {LUA_COLIBNAME, luaopen_coroutine}};
    for (const Library& library : libraries) {
        luaL_requiref(state, library.name, library.open, 1);
        lua_pop(state, 1);
    }
}

void limitBase(lua_State* state) {
    lua_pushglobaltable(state);
    wrapMember(state, "load", guarded<loadText>);
    for (const char* name : {"dofile", "loadfile"}) {
        lua_pushnil(state);
        lua_setfield(state, -2, name);
    }
    lua_pop(state, 1);
}

// A table with these functions of a library, under the library's name.
template <std::size_t Count>
void openParts(lua_State* state, const char* name, lua_CFunction open,
               const std::array<const char*, Count>& functions) {
    luaL_requiref(state, name, open, 0);
    lua_newtable(state);
    for (const char* function : functions) {
        lua_getfield(state, -2, function);
        lua_setfield(state, -2, function);
    }
    lua_pushvalue(state, -1);
    lua_setglobal(state, name);
    lua_remove(state, -2);
}

// A finalizer that a macro puts into it would run without anybody being asked.
void hideFileType(lua_State* state) {
    luaL_getmetatable(state, LUA_FILEHANDLE);
    lua_pushliteral(state, "file");
    lua_setfield(state, -2, "__metatable");
    lua_pop(state, 1);
}

void openLimited(lua_State* state) {
    openPlain(state);
    limitBase(state);
    openParts(state, LUA_OSLIBNAME, luaopen_os, std::to_array({"clock", "date", "difftime", "time"}));
    lua_pop(state, 1);
    openParts(state, LUA_IOLIBNAME, luaopen_io, std::to_array({"open", "lines", "type"}));
    wrapMember(state, "open", guarded<openFile>);
    wrapMember(state, "lines", guarded<readLines>);
    lua_pushcfunction(state, guarded<write>);
    lua_setfield(state, -2, "write");
    lua_pop(state, 1);
    hideFileType(state);
}

}  // namespace

void openLibraries(lua_State* state, bool trusted) {
    if (trusted) luaL_openlibs(state);
    else openLimited(state);
    lua_pushcfunction(state, guarded<print>);
    lua_setglobal(state, "print");
    watchThreads(state);
    if (!trusted) refuseFinalizers(state);
}

}  // namespace hx::lua
