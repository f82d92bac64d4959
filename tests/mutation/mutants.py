# SPDX-License-Identifier: MIT
"""Finds what could be changed in a C++ source file and writes every change into one copy of it, each behind a switch that is
thrown at run time: hxMutant(n) is true in the run that tries change n."""

import dataclasses
import re
import zlib
from pathlib import Path

from clang.cindex import CursorKind as Kind
from clang.cindex import Index, TypeKind

COMPARISONS = {'<': '<=', '<=': '<', '>': '>=', '>=': '>', '==': '!=', '!=': '=='}
ARITHMETIC = {'+': '-', '-': '+', '*': '/', '/': '*', '+=': '-=', '-=': '+=', '++': '--', '--': '++'}
INTEGERS = {TypeKind.SHORT, TypeKind.USHORT, TypeKind.INT, TypeKind.UINT, TypeKind.LONG, TypeKind.ULONG, TypeKind.LONGLONG,
            TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.UCHAR}
NUMBERS = INTEGERS | {TypeKind.FLOAT, TypeKind.DOUBLE}
LITERALS = {Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL, Kind.STRING_LITERAL, Kind.CHARACTER_LITERAL, Kind.CXX_BOOL_LITERAL_EXPR}
SYMMETRIC = {'equalIgnoreCase', 'isSameNode', 'sameValue', 'min', 'max'}  # functions whose arguments may change places
CLASSES = {Kind.CLASS_DECL, Kind.STRUCT_DECL, Kind.CLASS_TEMPLATE}
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.FUNCTION_TEMPLATE,
             Kind.CONVERSION_FUNCTION}
HEARS = re.compile(r'(?:subscriptions_ \. push_back \( (.+?) \. subscribe|(?:on|hear) \( (.+?) ,)')
SETS_TEXT = re.compile(r'(.+?) (?:->|\.) set\w+ \( "[^"]*" \)')
GETS = re.compile(r'\w+ (?:->|\.) \w+ \( \)')


@dataclasses.dataclass
class Mutant:
    number: int
    file: str
    line: int
    last_line: int
    change: str
    risky: bool = False   # may not compile
    static: bool = False  # takes effect once for all tests of a program


@dataclasses.dataclass
class Wrap:
    """Text before and behind a piece of the source; it stands there while all its mutants are in use."""
    start: int
    end: int
    before: str
    behind: str
    numbers: tuple
    replaces: bool = False  # `before` stands in place of the piece
    first: bool = False     # `before` is a statement of its own, in front of all others


class File:
    """The changes of one file. Parsed once; text() gives the copy with those that are not left out."""

    def __init__(self, root, path, arguments):
        self.name = str(path.relative_to(root))
        self.source = path.read_bytes()
        self.base = zlib.crc32(self.name.encode()) % 2000000 * 1000
        self.mutants, self.wraps, self.constants = [], [], []
        self._static, self._forced = False, set()
        unit = Index.create().parse(str(path), args=['-x', 'c++', *arguments])
        self._unit = unit
        for cursor in unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == str(path):
                self._visit(cursor, None)
        self._unit = None

    # --- the copy

    def text(self, left_out=frozenset()):
        use = [w for w in self.wraps if not left_out.intersection(w.numbers)]
        use += {(start, end): Wrap(start, end, word, '', (), True) for start, end, word, inside in self.constants
                if not inside <= left_out}.values()
        opening, closing, skipped = {}, {}, {}
        for order, wrap in enumerate(use):
            opening.setdefault(wrap.start, []).append((-wrap.end, -1 if wrap.first else order, wrap.before))
            closing.setdefault(wrap.end, []).append((-wrap.start, -order, wrap.behind))
            if wrap.replaces:
                skipped[wrap.start] = wrap.end
        out, at = b'', 0
        for offset in sorted(opening.keys() | closing.keys()):
            if offset > at:
                out += self.source[at:offset]
                at = offset
            out += ''.join(entry[-1] for entry in sorted(closing.get(offset, []))).encode()
            out += ''.join(entry[-1] for entry in sorted(opening.get(offset, []))).encode()
            at = max(at, skipped.get(offset, 0))
        return out + self.source[at:]

    # --- building blocks

    def _mutant(self, cursor, change, risky=False):
        mutant = Mutant(self.base + len(self.mutants), self.name, cursor.extent.start.line, cursor.extent.end.line, change,
                        risky, self._static)
        self.mutants.append(mutant)
        return mutant.number

    def _code(self, cursor):
        return ' '.join(t.spelling for t in self._unit.get_tokens(extent=cursor.extent))

    def _short(self, cursor):
        text = ' '.join(self.source[cursor.extent.start.offset:cursor.extent.end.offset].decode().split())
        return text if len(text) <= 70 else text[:67] + '...'

    def _wrap(self, cursor, before, behind, *numbers):
        self.wraps.append(Wrap(cursor.extent.start.offset, cursor.extent.end.offset, before, behind, numbers))

    def _instead(self, cursor, other, change, risky=False):
        """Another expression in place of this one."""
        if '\n' not in other:
            number = self._mutant(cursor, change, risky)
            self._wrap(cursor, f'(hxMutant({number})?({other}):(', '))', number)

    def _end_of_statement(self, cursor):
        end = cursor.extent.end.offset
        while self.source[end:end + 1].isspace():
            end += 1
        return end + 1 if self.source[end:end + 1] == b';' else None

    def _operator(self, left, right):
        between = self.source[left.extent.end.offset:right.extent.start.offset].decode().strip()
        return between.strip('()').strip()

    # --- the walk

    def _visit(self, cursor, parent):
        kind = cursor.kind
        if kind in (Kind.STATIC_ASSERT, Kind.ENUM_DECL, Kind.TYPE_ALIAS_DECL, Kind.DECL_REF_EXPR) and \
                not self._named_constant(cursor):
            return
        if kind in FUNCTIONS and (cursor.spelling == 'members'):
            return  # a table of names that other tests walk through
        before = len(self.mutants)
        static = self._static
        children = list(cursor.get_children())
        if kind in (Kind.VAR_DECL, Kind.FIELD_DECL, Kind.PARM_DECL):
            if parent is not None and parent.kind in CLASSES and b'constexpr' in self._head(cursor):
                return
            self._static = static or self._lives_on(cursor, parent)
            children = [c for c in children if c.extent.start.offset > cursor.location.offset or
                        c.kind == Kind.INIT_LIST_EXPR]
        elif kind == Kind.CASE_STMT:
            children = children[1:]
        elif kind == Kind.MEMBER_REF_EXPR:
            children = [c for c in children if c.extent.start.offset == cursor.extent.start.offset]
        self._look_at(cursor, children)
        for child in children:
            self._visit(child, cursor)
        self._static = static
        if kind == Kind.VAR_DECL or kind in FUNCTIONS:
            self._no_constant(cursor, before)

    def _head(self, cursor):
        return self.source[cursor.extent.start.offset:cursor.location.offset]

    def _lives_on(self, cursor, parent):
        return cursor.kind == Kind.VAR_DECL and (parent is None or parent.kind == Kind.NAMESPACE or b'static' in self._head(cursor))

    def _no_constant(self, cursor, before):
        """What is chosen at run time is no constant expression."""
        at = self._head(cursor).find(b'constexpr')
        if at < 0 or len(self.mutants) == before:
            return
        start = cursor.extent.start.offset + at
        end = start + len(b'constexpr')
        if cursor.kind == Kind.VAR_DECL:
            word = '' if self.source[end:].lstrip().startswith(b'const ') else 'const'
        else:
            word = '' if b'static' in self._head(cursor) else 'inline'
        self.constants.append((start, end, word, frozenset(m.number for m in self.mutants[before:])))

    def _look_at(self, cursor, children):
        kind = cursor.kind
        if kind == Kind.COMPOUND_STMT:
            self._statements(children)
        elif kind == Kind.IF_STMT:
            self._if(cursor, children)
        elif kind in (Kind.WHILE_STMT, Kind.CXX_FOR_RANGE_STMT, Kind.FOR_STMT):
            self._statement(children[-1])
            if kind == Kind.WHILE_STMT:
                self._condition(children[0], (False,))
        elif kind == Kind.CONDITIONAL_OPERATOR:
            self._condition(children[0])
        elif kind == Kind.RETURN_STMT and children:
            self._return(cursor, children[0])
        elif kind in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            self._binary(cursor, children[0], children[1])
        elif kind == Kind.UNARY_OPERATOR and children[0].type.get_canonical().kind in NUMBERS:
            self._unary(cursor)
        elif kind == Kind.CALL_EXPR:
            self._call(cursor, children)
        elif kind in LITERALS:
            self._literal(cursor)
        elif kind == Kind.DECL_REF_EXPR:
            self._constant(cursor)

    # --- statements

    def _statements(self, statements):
        for statement, following in zip(statements, statements[1:] + [None]):
            number = self._statement(statement)
            if number is None:
                self._unused(statement)
            elif following is not None and self._removable(following):
                self._swap(statement, following)

    def _removable(self, statement):
        return (statement.kind.is_expression() or statement.kind in (Kind.BREAK_STMT, Kind.CONTINUE_STMT) or
                statement.kind == Kind.RETURN_STMT and not list(statement.get_children())) and \
            self._end_of_statement(statement) is not None

    def _statement(self, statement):
        if not self._removable(statement):
            return None
        number = self._mutant(statement, f'without "{self._short(statement)}"')
        self.wraps.append(Wrap(statement.extent.start.offset, self._end_of_statement(statement), f'if(hxMutant({number})){{}}else ',
                               '', (number,)))
        return number

    def _swap(self, first, second):
        code = self._code(second)
        if '\n' in code or Kind.CXX_THROW_EXPR in (first.kind, second.kind) or not second.kind.is_expression() or \
                self._independent(first, second):
            return
        number = self._mutant(first, f'"{self._short(second)}" before "{self._short(first)}"')
        self.wraps.append(Wrap(first.extent.start.offset, self._end_of_statement(first), f'if(hxMutant({number})){{{code};}}', '',
                               (number,), first=True))
        self.wraps.append(Wrap(second.extent.start.offset, self._end_of_statement(second), f'if(hxMutant({number})){{}}else ', '',
                               (number,)))

    def _independent(self, first, second):
        one, two = self._code(first), self._code(second)
        return self._assigns_beside(one, two) and self._assigns_beside(two, one) or \
            any(pattern.match(one) and pattern.match(two) and pattern.match(one).groups() != pattern.match(two).groups()
                for pattern in (HEARS, SETS_TEXT))  # two events are heard, two controls get a text

    def _assigns_beside(self, assignment, other):
        """An assignment that at most asks an object, to what the other statement does not name."""
        target, sign, value = assignment.partition(' = ')
        return bool(sign) and ('(' not in value or GETS.fullmatch(value) is not None) and '=' not in value and \
            target.split()[-1] not in other.split()

    def _unused(self, statement):
        """An object that only lives, such as a wait cursor: without it."""
        variables = list(statement.get_children()) if statement.kind == Kind.DECL_STMT else []
        if len(variables) != 1 or variables[0].kind != Kind.VAR_DECL:
            return
        variable = variables[0]
        inits = [c for c in variable.get_children() if c.extent.start.offset > variable.location.offset or c.kind == Kind.CALL_EXPR]
        name_end = variable.location.offset + len(variable.spelling)
        rest = self.source[name_end:variable.extent.end.offset].decode().strip()
        used = self.source[variable.extent.end.offset:].split(b'\n}\n')[0]
        if not inits or variable.spelling.encode() in b''.join(used.split(b'.' + variable.spelling.encode() + b'(')):
            return
        if variable.type.get_canonical().kind != TypeKind.RECORD or not rest:
            return
        number = self._mutant(statement, f'without "{self._short(statement)}"', True)
        if rest.startswith('='):
            self.wraps.append(Wrap(name_end, variable.extent.end.offset, f'=hxMutant({number})?decltype({rest[1:]}){{}}:({rest[1:]})',
                                   '', (number,), True))
        else:
            declared = self._head(variable).decode().replace('const ', '', 1).strip()
            self.wraps.append(Wrap(statement.extent.start.offset, name_end,
                                   f'std::optional<{declared}> {variable.spelling};if(!hxMutant({number})){variable.spelling}.emplace',
                                   '', (number,), True))

    def _if(self, cursor, children):
        if 'constexpr' in self._code(cursor)[:16]:
            return
        at = 1 if children[0].kind == Kind.DECL_STMT else 0
        for branch in children[at + 1:]:
            self._statement(branch)
        condition = children[at]
        if condition.kind != Kind.VAR_DECL:
            return self._condition(condition)
        never = self._mutant(condition, f'never "{self._short(condition)}"')
        self._wrap(condition, '', f';!hxMutant({never})&&static_cast<bool>({condition.spelling})', never)

    def _condition(self, condition, forced=(True, False)):
        self._forced.add(condition.extent.start.offset)
        numbers = [self._mutant(condition, f'{str(value).lower()} for "{self._short(condition)}"') for value in forced]
        for value, number in zip(forced, numbers):
            self._wrap(condition, f'(hxMutant({number})||(' if value else f'(!hxMutant({number})&&(', '))', number)

    def _return(self, cursor, value):
        kind = value.type.get_canonical().kind
        change = f'another value than "{self._short(cursor)}"'
        if kind == TypeKind.BOOL:
            if value.kind != Kind.CXX_BOOL_LITERAL_EXPR:
                self._condition(value)
        elif kind in NUMBERS:
            if value.kind not in LITERALS:
                self._instead(value, self._plus_one(value), change)
        elif kind in (TypeKind.VOID, TypeKind.POINTER, TypeKind.RECORD):
            other = {TypeKind.VOID: '', TypeKind.POINTER: 'nullptr', TypeKind.RECORD: '{}'}[kind]
            if self._code(value) in ('{ }', 'nullptr', 'std :: nullopt'):
                return
            number = self._mutant(cursor, change, True)
            self._wrap(cursor, f'if(hxMutant({number}))return {other};else ', '', number)

    # --- expressions

    def _binary(self, cursor, left, right):
        sign = self._operator(left, right)
        if sign in ('&&', '||'):
            for side in (left, right):
                number = self._mutant(side, f'"{self._short(cursor)}" without "{self._short(side)}"')
                self._wrap(side, f'(hxMutant({number})||(' if sign == '&&' else f'(!hxMutant({number})&&(', '))', number)
        elif sign in COMPARISONS:
            self._other_operator(cursor, left, right, COMPARISONS[sign])
        elif sign in ARITHMETIC and {left.type.get_canonical().kind, right.type.get_canonical().kind} <= NUMBERS:
            self._other_operator(cursor, left, right, ARITHMETIC[sign])

    def _other_operator(self, cursor, left, right, sign):
        if sign in ('==', '!=') and cursor.extent.start.offset in self._forced:
            return  # true and false for it have been tried
        self._instead(cursor, f'{self._code(left)} {sign} {self._code(right)}', f'{sign} in "{self._short(cursor)}"')

    def _unary(self, cursor):
        code = self._code(cursor)
        for sign in ('++', '--'):
            if code.startswith(sign) or code.endswith(sign):
                self._instead(cursor, code.replace(sign, ARITHMETIC[sign]), f'{ARITHMETIC[sign]} in "{self._short(cursor)}"')
        if code.startswith('-') and not code.startswith('--'):
            self._instead(cursor, code[1:], f'no minus in "{self._short(cursor)}"')

    def _call(self, cursor, children):
        if cursor.spelling.startswith('operator'):
            arguments = [c for c in children if c.kind != Kind.UNEXPOSED_EXPR or not c.spelling.startswith('operator')]
            sign = self._operator(*arguments) if len(arguments) == 2 else ''
            if sign in COMPARISONS:
                self._other_operator(cursor, arguments[0], arguments[1], COMPARISONS[sign])
            return
        arguments = [a for a in cursor.get_arguments() if a is not None and self._code(a)]
        if cursor.spelling not in SYMMETRIC:
            for first, second in zip(arguments, arguments[1:]):
                self._swap_arguments(first, second)
        parameters = list(cursor.referenced.type.argument_types()) if cursor.referenced is not None and \
            cursor.referenced.kind in FUNCTIONS else []
        for argument, parameter in zip(arguments, parameters):
            self._argument(argument, parameter)

    def _swap_arguments(self, first, second):
        one, two = self._code(first), self._code(second)
        same = first.type.get_canonical().spelling == second.type.get_canonical().spelling
        if not same or one == two or '[{'.find(one[0]) >= 0 or '[{'.find(two[0]) >= 0 or '\n' in one + two:
            return
        number = self._mutant(first, f'"{self._short(first)}" and "{self._short(second)}" swapped', True)
        self._wrap(first, f'(hxMutant({number})?({two}):(', '))', number)
        self._wrap(second, f'(hxMutant({number})?({one}):(', '))', number)

    def _plus_one(self, cursor):
        code = self._code(cursor)
        return f'static_cast<std::remove_cvref_t<decltype({code})>>(({code})+1)'

    def _argument(self, argument, parameter):
        kind = argument.type.get_canonical().kind
        if argument.kind in LITERALS or self._named_constant(argument) or \
                parameter.kind == TypeKind.LVALUEREFERENCE and not parameter.get_pointee().is_const_qualified():
            return
        if kind == TypeKind.BOOL:
            self._instead(argument, f'!({self._code(argument)})', f'not "{self._short(argument)}" as argument', True)
        elif kind in NUMBERS:
            self._instead(argument, self._plus_one(argument), f'1 more than "{self._short(argument)}" as argument', True)

    # --- constants

    def _literal(self, cursor):
        text = self.source[cursor.extent.start.offset:cursor.extent.end.offset].decode()
        around = self.source[:cursor.extent.start.offset].rstrip()[-1:] + self.source[cursor.extent.end.offset:].lstrip()[:1]
        if not text or around in (b',>', b'<>', b'<,'):
            return  # of a template
        other = {Kind.CXX_BOOL_LITERAL_EXPR: lambda: 'false' if text == 'true' else 'true',
                 Kind.STRING_LITERAL: lambda: '"mutant"' if text == '""' else '""',
                 Kind.CHARACTER_LITERAL: lambda: "'~'"}.get(cursor.kind, lambda: f'{text}+1')()
        self._instead(cursor, other, f'{other} for {self._short(cursor)}')

    def _named_constant(self, cursor):
        """A constant, or one of an enumeration, that is named here."""
        if cursor.kind != Kind.DECL_REF_EXPR or cursor.referenced is None:
            return False
        named = cursor.referenced
        if named.kind == Kind.ENUM_CONSTANT_DECL:
            return True
        return named.kind == Kind.VAR_DECL and named.type.is_const_qualified() and \
            named.type.get_canonical().kind in INTEGERS and named.semantic_parent.kind == Kind.NAMESPACE

    def _constant(self, cursor):
        code = self._code(cursor)
        if cursor.referenced.kind == Kind.ENUM_CONSTANT_DECL:
            names = [c.spelling for c in cursor.referenced.semantic_parent.get_children() if c.kind == Kind.ENUM_CONSTANT_DECL]
            other = names[(names.index(cursor.spelling) + 1) % len(names)]
            if other != cursor.spelling and code.endswith(cursor.spelling):
                self._instead(cursor, code[:-len(cursor.spelling)] + other, f'{other} for {self._short(cursor)}')
        else:
            kind = cursor.referenced.type.spelling.replace('const ', '')
            self._instead(cursor, f'static_cast<{kind}>({code}+1)', f'1 more than {self._short(cursor)}')


def files_of(root, folders):
    return [p for f in folders for p in sorted((Path(root) / f).iterdir()) if p.suffix in ('.cpp', '.h')]
