// SPDX-License-Identifier: MIT
#include "adapters/lua/object.h"

#include <memory>
#include <string>
#include <vector>

#include "adapters/lua/machine.h"
#include "adapters/lua/protect.h"
#include "adapters/lua/stack.h"

namespace hx::lua {

using automation::Error;
using automation::MemberKind;
using automation::ObjectRef;
using automation::Variant;

namespace {

constexpr int objectSlot = 1, nameSlot = 2;  // a member's user values

bool hasType(lua_State* state, int index, const void* type) {
    if (lua_type(state, index) != LUA_TUSERDATA || lua_getmetatable(state, index) == 0) return false;
    const bool same = lua_topointer(state, -1) == type;
    lua_pop(state, 1);
    return same;
}

ObjectRef requireObject(lua_State* state, int index) {
    const ObjectRef* object = objectAt(state, index);
    if (object == nullptr || *object == nullptr)
        throw Error(automation::errTypeMismatch, "Type mismatch: object expected");
    return *object;
}

/// A member that waits for its arguments: Columns in Columns("VarRecipe").
struct BoundMember {
    ObjectRef object;
    std::string name;
};

BoundMember memberAt(lua_State* state, int index) {
    if (!hasType(state, index, Machine::of(state).memberType)) {
        throw Error(automation::errTypeMismatch, "Type mismatch: member expected");
    }
    lua_getiuservalue(state, index, objectSlot);
    ObjectRef object = requireObject(state, -1);
    lua_getiuservalue(state, index, nameSlot);
    std::string name = textAt(state, -1);
    lua_pop(state, 2);
    return {std::move(object), std::move(name)};
}

int makeMember(lua_State* state) {
    lua_newuserdatauv(state, 0, nameSlot);
    lua_insert(state, 1);
    lua_setiuservalue(state, 1, nameSlot);
    lua_setiuservalue(state, 1, objectSlot);
    luaL_setmetatable(state, memberTypeName);
    return 1;
}

// Object and name lie at 1 and 2.
int giveMember(lua_State* state) {
    lua_settop(state, 2);
    protect(state, 2, 1, [](lua_State* inner) { return makeMember(inner); });
    return 1;
}

int objectIndex(lua_State* state) {
    const ObjectRef object = requireObject(state, 1);
    const std::string name = textAt(state, 2);
    const automation::Member* const member = object->members().find(name);
    if (member != nullptr && member->kind != MemberKind::property) return giveMember(state);
    try {
        return give(state, object->get(name));
    } catch (const Error& error) {
        const bool controlArray = member == nullptr && error.number() == automation::errBadParamCount;
        if (!controlArray) throw;
    }
    return giveMember(state);
}

int objectNewIndex(lua_State* state) {
    const ObjectRef object = requireObject(state, 1);
    object->set(textAt(state, 2), valueAt(state, 3).toVariant());
    return 0;
}

// A list that is the only argument stands for its items: SelectRows({0, 2}).
std::vector<Variant> argumentsFrom(lua_State* state, int first) {
    std::vector<Value> values = valuesFrom(state, first);
    if (values.size() == 1 && std::holds_alternative<List>(values[0].content)) {
        List items = std::get<List>(std::move(values[0].content));
        values = std::move(items);
    }
    std::vector<Variant> arguments;
    for (const Value& value : values) arguments.push_back(value.toVariant());
    return arguments;
}

int memberCall(lua_State* state) {
    const BoundMember member = memberAt(state, 1);
    const ObjectRef* const given = objectAt(state, 2);
    const bool byColon = given != nullptr && *given == member.object;
    return give(state, member.object->get(member.name, argumentsFrom(state, byColon ? 3 : 2)));
}

int memberIndex(lua_State* state) {
    const BoundMember member = memberAt(state, 1);
    const Variant index = valueAt(state, 2).toVariant();
    return give(state, member.object->get(member.name, automation::Args(&index, 1)));
}

int memberNewIndex(lua_State* state) {
    const BoundMember member = memberAt(state, 1);
    const Variant index = valueAt(state, 2).toVariant();
    member.object->set(member.name, valueAt(state, 3).toVariant(), automation::Args(&index, 1));
    return 0;
}

int objectEquals(lua_State* state) {
    const ObjectRef* const first = objectAt(state, 1);
    const ObjectRef* const second = objectAt(state, 2);
    lua_pushboolean(state, first != nullptr && second != nullptr && *first == *second ? 1 : 0);
    return 1;
}

int objectText(lua_State* state) { return give(state, requireObject(state, 1)->className()); }
int memberText(lua_State* state) {
    const BoundMember member = memberAt(state, 1);
    return give(state, std::string(member.object->className()) + "." + member.name);
}

// The reference stays a valid, empty one.
int releaseObject(lua_State* state) {
    static_cast<ObjectRef*>(lua_touserdata(state, 1))->reset();
    return 0;
}

constexpr luaL_Reg objectFunctions[] = {{"__index", guarded<objectIndex>}, {"__newindex", guarded<objectNewIndex>},
                                        {"__eq", guarded<objectEquals>},   {"__tostring", guarded<objectText>},
                                        {"__gc", releaseObject},           {nullptr, nullptr}};
constexpr luaL_Reg memberFunctions[] = {{"__call", guarded<memberCall>},
                                        {"__index", guarded<memberIndex>},
                                        {"__newindex", guarded<memberNewIndex>},
                                        {"__tostring", guarded<memberText>},
                                        {nullptr, nullptr}};

// The metatable itself is out of a macro's reach.
const void* registerType(lua_State* state, const char* name, const luaL_Reg* functions, const char* shown) {
    luaL_newmetatable(state, name);
    luaL_setfuncs(state, functions, 0);
    lua_pushstring(state, shown);
    lua_setfield(state, -2, "__metatable");
    const void* const type = lua_topointer(state, -1);
    lua_pop(state, 1);
    return type;
}

}  // namespace

void registerObjects(lua_State* state) {
    Machine& machine = Machine::of(state);
    machine.objectType = registerType(state, objectTypeName, objectFunctions, "object");
    machine.memberType = registerType(state, memberTypeName, memberFunctions, "member");
}

void pushObject(lua_State* state, const ObjectRef& object) {
    if (object == nullptr) return lua_pushnil(state);
    auto* const kept = static_cast<ObjectRef*>(lua_newuserdatauv(state, sizeof(ObjectRef), 0));
    std::construct_at(kept);
    luaL_setmetatable(state, objectTypeName);
    *kept = object;
}

const ObjectRef* objectAt(lua_State* state, int index) {
    if (!hasType(state, index, Machine::of(state).objectType)) return nullptr;
    return static_cast<const ObjectRef*>(lua_touserdata(state, index));
}

}  // namespace hx::lua
