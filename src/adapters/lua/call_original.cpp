// SPDX-License-Identifier: MIT
#include "adapters/lua/call_original.h"

#include "adapters/lua/protect.h"

namespace hx::lua {

// The function that the first upvalue keeps.
int callOriginal(lua_State* state) {
    lua_pushvalue(state, lua_upvalueindex(1));
    lua_insert(state, 1);
    protect(state, lua_gettop(state), LUA_MULTRET, [](lua_State* inner) {
        lua_call(inner, lua_gettop(inner) - 1, LUA_MULTRET);
        return lua_gettop(inner);
    });
    return lua_gettop(state);
}

void wrapMember(lua_State* state, const char* name, lua_CFunction guard) {
    lua_getfield(state, -1, name);
    lua_pushcclosure(state, guard, 1);
    lua_setfield(state, -2, name);
}

}  // namespace hx::lua
