// SPDX-License-Identifier: MIT
#include "adapters/lua/stack.h"

#include <limits>

#include "adapters/lua/function_reference.h"
#include "adapters/lua/machine.h"
#include "adapters/lua/object.h"
#include "adapters/lua/protect.h"
#include "automation/error.h"

namespace hx::lua {

using automation::Error;
using automation::Variant;
using automation::VarType;

namespace {

constexpr int deepest = 50;  // tables in tables
constexpr int slots = 8;     // of the stack for one value

[[noreturn]] void failType(const std::string& what) {
    throw Error(automation::errTypeMismatch, "Type mismatch: " + what);
}

Value read(lua_State* state, int index, int depth);

Variant readNumber(lua_State* state, int index) {
    if (lua_isinteger(state, index) == 0) return lua_tonumberx(state, index, nullptr);
    const lua_Integer whole = lua_tointegerx(state, index, nullptr);
    using Limits = std::numeric_limits<std::int32_t>;
    if (whole >= Limits::min() && whole <= Limits::max()) return static_cast<std::int32_t>(whole);
    return static_cast<double>(whole);
}

List readList(lua_State* state, int table, int depth) {
    List items;
    const auto count = static_cast<lua_Integer>(lua_rawlen(state, table));
    Machine::of(state).memory.charge(static_cast<std::size_t>(count) * sizeof(Value));
    for (lua_Integer i = 1; i <= count; ++i) {
        lua_rawgeti(state, table, i);
        items.push_back(read(state, lua_gettop(state), depth + 1));
        lua_pop(state, 1);
    }
    return items;
}

Fields readFields(lua_State* state, int table, int depth) {
    Fields fields;
    lua_pushnil(state);
    while (lua_next(state, table) != 0) {
        const int top = lua_gettop(state);
        std::string name = textAt(state, top - 1);
        Machine::of(state).memory.charge(sizeof(Fields::value_type));
        fields.emplace_back(std::move(name), read(state, top, depth + 1));
        lua_pop(state, 1);
    }
    return fields;
}

Value readTable(lua_State* state, int index, int depth) {
    if (depth > deepest || lua_checkstack(state, slots) == 0) failType("the table is nested too deeply");
    if (lua_rawlen(state, index) > 0) return readList(state, index, depth);
    Fields fields = readFields(state, index, depth);
    if (fields.empty()) return List();
    return fields;
}

Value readUserdata(lua_State* state, int index) {
    if (lua_touserdata(state, index) == Machine::of(state).null) return automation::Null{};
    if (const automation::ObjectRef* object = objectAt(state, index)) return *object;
    failType("a member needs its arguments, in parentheses");
}

Value readFunction(lua_State* state, int index) {
    int reference = LUA_NOREF;
    lua_pushvalue(state, index);
    protect(state, 1, 0, [&](lua_State* inner) {
        reference = luaL_ref(inner, LUA_REGISTRYINDEX);
        return 0;
    });
    return Function(std::make_shared<FunctionReference>(Machine::of(state).weak_from_this(), reference));
}

Value read(lua_State* state, int index, int depth) {
    switch (lua_type(state, index)) {
        case LUA_TNONE:
        case LUA_TNIL: return {};
        case LUA_TBOOLEAN: return lua_toboolean(state, index) != 0;
        case LUA_TNUMBER: return readNumber(state, index);
        case LUA_TSTRING: return textAt(state, index);
        case LUA_TTABLE: return readTable(state, index, depth);
        case LUA_TFUNCTION: return readFunction(state, index);
        case LUA_TUSERDATA: return readUserdata(state, index);
        default: failType(std::string("a ") + lua_typename(state, lua_type(state, index)) + " cannot be passed");
    }
}

void pushVariant(lua_State* state, const Variant& value) {
    switch (value.type()) {
        case VarType::empty: return lua_pushnil(state);
        case VarType::null: lua_getfield(state, LUA_REGISTRYINDEX, nullName); return;
        case VarType::boolean: return lua_pushboolean(state, value.asBoolean() ? 1 : 0);
        case VarType::int16: return lua_pushinteger(state, value.asInt16());
        case VarType::int32: return lua_pushinteger(state, value.asInt32());
        case VarType::real8: return lua_pushnumber(state, value.asDouble());
        case VarType::string: lua_pushlstring(state, value.asString().data(), value.asString().size()); return;
        case VarType::object: return pushObject(state, value.asObject());
    }
}

void pushList(lua_State* state, const List& items) {
    lua_createtable(state, static_cast<int>(items.size()), 0);
    lua_Integer number = 0;
    for (const Value& item : items) {
        push(state, item);
        lua_rawseti(state, -2, ++number);
    }
}

void pushFields(lua_State* state, const Fields& fields) {
    lua_createtable(state, 0, static_cast<int>(fields.size()));
    for (const auto& [name, value] : fields) {
        lua_pushlstring(state, name.data(), name.size());
        push(state, value);
        lua_rawset(state, -3);
    }
}

}  // namespace

Value valueAt(lua_State* state, int index) { return read(state, lua_absindex(state, index), 0); }

std::vector<Value> valuesFrom(lua_State* state, int first) {
    std::vector<Value> values;
    const int last = lua_gettop(state);
    for (int index = first; index <= last; ++index) values.push_back(valueAt(state, index));
    return values;
}

// A number would be turned into text in its place, which confuses a walk through a table.
std::string textAt(lua_State* state, int index) {
    if (lua_type(state, index) != LUA_TSTRING) {
        failType(std::string("text expected, not a ") + luaL_typename(state, index));
    }
    std::size_t size = 0;
    const char* const text = lua_tolstring(state, index, &size);
    Machine::of(state).memory.charge(size);
    return {text, size};
}

void push(lua_State* state, const Value& value) {
    luaL_checkstack(state, slots, "the table is nested too deeply");
    if (const auto* variant = std::get_if<Variant>(&value.content)) return pushVariant(state, *variant);
    if (const auto* items = std::get_if<List>(&value.content)) return pushList(state, *items);
    if (const auto* fields = std::get_if<Fields>(&value.content)) return pushFields(state, *fields);
    // A function is the macro's own; nothing hands one back.
    lua_pushnil(state);
}

int give(lua_State* state, const Value& value) {
    protect(state, 0, 1, [&](lua_State* inner) {
        push(inner, value);
        return 1;
    });
    return 1;
}

}  // namespace hx::lua
