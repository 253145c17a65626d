"""Finds what can be mutated in a source file and writes the file anew with all of its mutants in it, each switched on at
run time by its number: `a < b` becomes `(::mutation::On(17) ? (a <= b) : (a < b))`. One build then serves every mutant.
"""
import bisect
import collections
import re

from clang.cindex import Cursor, CursorKind as K, Index, TokenKind, TranslationUnit, TypeKind

Key = collections.namedtuple('Key', 'file function line change ordinal')

SWAPPED = {'<': '<=', '<=': '<', '>': '>=', '>=': '>', '==': '!=', '!=': '==', '&&': '||', '||': '&&'}
ARITHMETIC = {'+': '-', '-': '+', '*': '/', '/': '*', '%': '/', '&': '|', '|': '&', '^': '&', '<<': '>>', '>>': '<<'}
ASSIGNING = {operator + '=': change + '=' for operator, change in ARITHMETIC.items()}
CALLS = {'min': 'max', 'max': 'min', 'all_of': 'any_of', 'any_of': 'all_of', 'none_of': 'any_of', 'floor': 'ceil',
         'ceil': 'floor', 'find_first_of': 'find_first_not_of', 'find_first_not_of': 'find_first_of', 'find': 'rfind',
         'rfind': 'find', 'starts_with': 'ends_with', 'ends_with': 'starts_with', 'front': 'back', 'back': 'front',
         'lower_bound': 'upper_bound', 'upper_bound': 'lower_bound', 'MinValue': 'MaxValue', 'MaxValue': 'MinValue'}
FUNCTIONS = {K.FUNCTION_DECL, K.CXX_METHOD, K.CONSTRUCTOR, K.DESTRUCTOR, K.CONVERSION_FUNCTION, K.FUNCTION_TEMPLATE}
CLASSES = {K.CLASS_DECL, K.STRUCT_DECL, K.CLASS_TEMPLATE, K.CLASS_TEMPLATE_PARTIAL_SPECIALIZATION}
LITERALS = {K.INTEGER_LITERAL, K.FLOATING_LITERAL, K.CHARACTER_LITERAL, K.STRING_LITERAL, K.CXX_BOOL_LITERAL_EXPR}
NUMBERS = {TypeKind.BOOL, TypeKind.CHAR_U, TypeKind.UCHAR, TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.WCHAR,
           TypeKind.USHORT, TypeKind.UINT, TypeKind.ULONG, TypeKind.ULONGLONG, TypeKind.SHORT, TypeKind.INT,
           TypeKind.LONG, TypeKind.LONGLONG, TypeKind.FLOAT, TypeKind.DOUBLE, TypeKind.ENUM, TypeKind.DEPENDENT}
# What the language wants to be constant, and what is not run.
NEVER = {K.STATIC_ASSERT, K.ENUM_CONSTANT_DECL, K.TEMPLATE_NON_TYPE_PARAMETER, K.TEMPLATE_TYPE_PARAMETER,
         K.CXX_UNARY_EXPR, K.TYPE_ALIAS_DECL, K.TYPEDEF_DECL, K.TYPE_REF, K.TEMPLATE_REF, K.NAMESPACE_REF}
# A reference's children are the arguments of its template.
REFERENCES = {K.DECL_REF_EXPR, K.MEMBER_REF_EXPR, K.TYPE_REF, K.TEMPLATE_REF}
BLOCKS = {K.COMPOUND_STMT, K.CASE_STMT, K.DEFAULT_STMT}


class Mutant:
    """One alternative of one place; `number` is known once all of a file are."""

    def __init__(self, key_parts, text, context):
        self.function, self.line, self.change = key_parts
        self.text = text
        self.at_run_time = context.at_run_time
        self.constant = context.constant  # the name of that whose value it is in
        self.number = None
        self.key = None

    def switch(self):
        return f'::mutation::On{"AtRunTime" if self.at_run_time else ""}({self.number})'


class Place:
    """An expression or a statement, with all the mutants that replace it."""

    def __init__(self, start, end, kind):
        self.start, self.end, self.kind = start, end, kind
        self.mutants = []
        self.inside = []
        self.as_bool = False


class Context:
    """What a node must know of those around it."""

    def __init__(self, name='', function=None, at_run_time=False, in_lambda=False, ends_in_return=True, constant=None,
                 last=None, head=''):
        self.name, self.function, self.at_run_time = name, function, at_run_time
        self.in_lambda, self.ends_in_return, self.constant = in_lambda, ends_in_return, constant
        self.last = last  # where the function's last statement ends
        self.head = head  # the function's text before its body

    def but(self, **changes):
        made = Context(**vars(self))
        vars(made).update(changes)
        return made


class Source:
    """A file, its places and their mutants."""

    def __init__(self, path, name, arguments):
        self.path, self.name, self.arguments = str(path), name, arguments
        self.bytes = path.read_bytes()
        self.places = {}
        self.constants = {}  # where their "constexpr" stands, by name
        unit = Index.create().parse(self.path, args=arguments,
                                    options=TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
        self.errors = [str(d) for d in unit.diagnostics if d.severity >= 3]
        self.macros = []
        self.tokens = [t for t in unit.get_tokens(extent=unit.cursor.extent) if t.kind != TokenKind.COMMENT]
        self.starts = [t.extent.start.offset for t in self.tokens]
        for child in unit.cursor.get_children():
            if child.location.file is None or child.location.file.name != self.path:
                continue
            if child.kind == K.MACRO_INSTANTIATION:
                self.macros.append((child.extent.start.offset, child.extent.end.offset))
        for child in unit.cursor.get_children():
            if child.location.file is not None and child.location.file.name == self.path:
                self.visit(child, unit.cursor, Context())
        del self.tokens, self.starts, self.macros
        self.mutants = [m for place in self.ordered() for m in place.mutants]
        seen = collections.Counter()
        for mutant in self.mutants:
            parts = (mutant.function, mutant.line, mutant.change)
            mutant.key = Key(self.name, *parts, seen[parts])
            seen[parts] += 1

    def ordered(self):
        return sorted(self.places.values(), key=lambda place: (place.start, -place.end))

    # Texts

    def text(self, start, end):
        return self.bytes[start:end].decode()

    def of(self, node):
        return self.text(node.extent.start.offset, node.extent.end.offset)

    def line_at(self, offset):
        start = self.bytes.rfind(b'\n', 0, offset) + 1
        end = self.bytes.find(b'\n', offset)
        return ' '.join(self.bytes[start:end].decode().split())

    def tokens_between(self, start, end):
        first = bisect.bisect_left(self.starts, start)
        last = bisect.bisect_left(self.starts, end)
        return self.tokens[first:last]

    def operator_between(self, left, right):
        found = self.tokens_between(left.extent.end.offset, right.extent.start.offset)
        found = [t for t in found if t.spelling not in '()']
        return found[0] if len(found) == 1 else None

    # Places

    def place(self, start, end, kind):
        place = self.places.get((start, end))
        if place is None or place.kind != kind:
            place = self.places.setdefault((start, end, kind) if place else (start, end), Place(start, end, kind))
        return place

    def add(self, node, context, change, text, kind='expression', end=None, at=None, as_bool=False):
        """`at`: where the changed thing itself stands, whose line is the mutant's."""
        start, end = node.extent.start.offset, end or node.extent.end.offset
        if start >= end or any(start < last and first < end for first, last in self.macros):
            return
        place = self.place(start, end, kind)
        place.as_bool = place.as_bool or as_bool
        line = self.line_at(start if at is None else at)
        if all(m.text != text for m in place.mutants):
            place.mutants.append(Mutant((context.name, line, change), text, context))

    def replaced(self, node, token, change):
        start, at = node.extent.start.offset, token.extent.start.offset
        return self.text(start, at) + change + self.text(token.extent.end.offset, node.extent.end.offset)

    # The walk

    def visit(self, node, parent, context):
        kind = node.kind
        if kind in NEVER or kind.is_preprocessing():
            return
        if kind in FUNCTIONS:
            context = self.entered(node, context)
        elif kind in CLASSES:
            context = context.but(name=node.spelling)
        elif kind == K.LAMBDA_EXPR:
            context = context.but(in_lambda=True)
        elif kind in (K.VAR_DECL, K.FIELD_DECL) and context.function is None:
            context = context.but(name=f'{context.name}::{node.spelling}' if kind == K.FIELD_DECL else node.spelling)
        if kind == K.FIELD_DECL:
            context = context.but(at_run_time=True)  # the compiler may make the object
        if kind == K.VAR_DECL:
            context = self.unfrozen(node, parent, context)
        self.mutate(node, parent, context)
        for child in self.walked(node, context):
            self.visit(child, node, context)

    def unfrozen(self, node, parent, context):
        """A constant's value cannot change at run time: it becomes a variable, unless somebody needs the constant. That
        is seen when it does not compile."""
        start = node.extent.start.offset
        found = re.search(rb'\bconstexpr ', self.bytes[start:node.location.offset])
        if found is None or parent.kind in CLASSES or node.spelling in self.constants:
            return context
        self.constants[node.spelling] = (start + found.start(), start + found.end())
        return context.but(constant=node.spelling)

    def entered(self, node, context):
        names, at = [node.spelling], node.semantic_parent
        while at is not None and at.kind in CLASSES:
            names.insert(0, at.spelling)
            at = at.semantic_parent
        body = next((c for c in node.get_children() if c.kind == K.COMPOUND_STMT), None)
        # Attributes stand before what counts as the function.
        begin = self.bytes.rfind(b'\n', 0, node.extent.start.offset) + 1
        head = self.text(begin, body.extent.start.offset if body else node.extent.end.offset)
        last = list(body.get_children())[-1:] if body else []
        return Context(name='::'.join(re.sub(r'<.*', '', n) if not n.startswith('operator') else n for n in names),
                       function=node, at_run_time=bool(re.search(r'\bconst(expr|eval)\b', head)),
                       ends_in_return=not last or last[0].kind == K.RETURN_STMT,
                       last=last[0].extent.end.offset if last else None, head=head)

    def walked(self, node, context):
        kind, children = node.kind, list(node.get_children())
        if kind in (K.VAR_DECL, K.FIELD_DECL, K.PARM_DECL):
            if kind == K.FIELD_DECL and node.is_bitfield():
                return []
            name = node.location.offset
            head = self.text(node.extent.start.offset, max(name, node.extent.start.offset))
            if re.search(r'\bconst(expr|init)\b', head) and not context.constant:
                return []
            # Before the name stand template arguments, after it may stand the size of an array.
            return [c for c in children if c.extent.start.offset > name and
                    not self.text(name, c.extent.start.offset).rstrip().endswith('[')]
        if kind == K.CASE_STMT:
            return children[1:]
        if kind in REFERENCES:
            return [c for c in children if kind == K.MEMBER_REF_EXPR and c.extent.start.offset < node.location.offset]
        if kind == K.IF_STMT and self.tokens_between(node.extent.start.offset, node.extent.end.offset)[1].spelling == \
                'constexpr':
            return children[1:]
        if kind in (K.CXX_STATIC_CAST_EXPR, K.CXX_FUNCTIONAL_CAST_EXPR):
            return [c for c in children if c.kind not in LITERALS or
                    not re.search(r'<[^(){}]*$', self.text(node.extent.start.offset, c.extent.start.offset))]
        return children

    def mutate(self, node, parent, context):
        kind, children = node.kind, list(node.get_children())
        if context.function is not None and parent.kind in BLOCKS:
            self.remove_statement(node, parent, context)
        if kind == K.RETURN_STMT and children:
            self.change_return(node, children[0], context)
        elif kind in (K.BINARY_OPERATOR, K.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            self.change_binary(node, *children, context)
        elif kind == K.CALL_EXPR:
            self.change_call(node, parent, children, context)
        elif kind == K.UNARY_OPERATOR and children:
            self.change_unary(node, children[0], context)
        elif kind in LITERALS:
            if parent.kind != K.VAR_DECL or parent.type.get_canonical().kind != TypeKind.CONSTANTARRAY:
                self.change_literal(node, context)
        elif kind == K.DECL_REF_EXPR:
            self.change_constant(node, context)
        condition = self.condition_of(node, children)
        if condition is not None:
            self.negate(condition, context)

    def remove_statement(self, node, parent, context):
        kind = node.kind
        # Without its last statement a function that returns something could come to its end.
        if node.extent.end.offset == context.last and context.function.result_type.kind != TypeKind.VOID:
            return
        if kind in (K.BREAK_STMT, K.CONTINUE_STMT) or (kind == K.RETURN_STMT and not list(node.get_children())):
            change = self.of(node) + ' removed'
        elif kind == K.CXX_THROW_EXPR or self.of(node).startswith('throw '):
            if 'noreturn' in context.head or (context.function.result_type.kind != TypeKind.VOID and
                                              not context.ends_in_return):
                return
            change = 'throw removed'
        elif kind.is_expression() and kind != K.LAMBDA_EXPR and not self.of(node).startswith('static_cast<void>'):
            change = 'statement removed'
        else:
            return
        end = node.extent.end.offset
        semicolon = self.tokens_between(end, end + 200)[:1]
        if semicolon and semicolon[0].spelling == ';':
            self.add(node, context, change, '', kind='statement', end=semicolon[0].extent.end.offset)

    def change_return(self, node, value, context):
        end = node.extent.end.offset
        semicolon = self.tokens_between(end, end + 200)[:1]
        if not semicolon or semicolon[0].spelling != ';':
            return
        end, text = semicolon[0].extent.end.offset, self.of(value)
        if value.kind in LITERALS or text in ('true', 'false', 'nullptr', '0', '{}', 'std::nullopt', '*this'):
            return
        kind = value.type.get_canonical().kind
        if kind == TypeKind.BOOL:
            for result in ('true', 'false'):
                self.add(node, context, f'return {result}', f'return {result};', kind='return', end=end)
        elif not context.in_lambda and context.function is not None and context.function.result_type.kind not in (
                TypeKind.LVALUEREFERENCE, TypeKind.AUTO, TypeKind.VOID):
            self.add(node, context, 'return {}', 'return {};', kind='return', end=end)

    def change_binary(self, node, left, right, context):
        token = self.operator_between(left, right)
        if token is None:
            return
        operator, at = token.spelling, token.extent.start.offset
        if operator in SWAPPED:
            change = SWAPPED[operator]
            # What is bound loosely now must not let go of what was bound tightly.
            self.add(node, context, f'{operator} to {change}', f'({self.of(left)}) {change} ({self.of(right)})', at=at)
        elif operator in ARITHMETIC and node.type.get_canonical().kind in NUMBERS:
            self.swap(node, token, ARITHMETIC[operator], context)
        elif operator in ASSIGNING:
            if left.type.get_canonical().kind in NUMBERS:
                self.swap(node, token, ASSIGNING[operator], context)
        if operator in ('&&', '||'):
            for side, name in ((left, 'left'), (right, 'right')):
                self.add(node, context, f'{operator} to its {name} side', f'static_cast<bool>({self.of(side)})', at=at)

    def swap(self, node, token, change, context):
        self.add(node, context, f'{token.spelling} to {change}', self.replaced(node, token, change),
                 at=token.extent.start.offset)

    def change_call(self, node, parent, children, context):
        if node.spelling.startswith('operator') and len(children) >= 2:
            token = self.operator_between(children[0], children[-1])
            if token is not None and token.spelling in SWAPPED:
                self.swap(node, token, SWAPPED[token.spelling], context)
        elif node.spelling in CALLS and children:
            if node.spelling in ('find', 'rfind') and self.of(parent).endswith('npos'):
                return  # whether there is one, not where
            callee = [t for t in self.tokens_between(children[0].extent.start.offset, children[0].extent.end.offset)
                      if t.spelling == node.spelling]
            if callee:
                self.swap(node, callee[-1], CALLS[node.spelling], context)

    def change_unary(self, node, operand, context):
        tokens = self.tokens_between(node.extent.start.offset, node.extent.end.offset)
        if not tokens:  # the compiler's own, in what it makes of a range or of a default
            return
        first, last = tokens[0], tokens[-1]
        if first.spelling == '!':
            self.add(node, context, '! removed', f'static_cast<bool>({self.of(operand)})')
        elif first.spelling in ('-', '~') and operand.kind not in LITERALS:
            self.add(node, context, f'{first.spelling} removed', self.of(operand))
        elif first.spelling in ('++', '--') or last.spelling in ('++', '--'):
            token = first if first.spelling in ('++', '--') else last
            self.swap(node, token, '--' if token.spelling == '++' else '++', context)

    def change_literal(self, node, context):
        text, kind = self.of(node), node.kind
        if kind == K.CXX_BOOL_LITERAL_EXPR:
            change = 'false' if text == 'true' else 'true'
        elif kind == K.STRING_LITERAL:
            if '\\0' in text or text.endswith('""'):
                return
            change = re.match(r'(\w*)', text).group(1) + '""'
        elif kind == K.CHARACTER_LITERAL:
            change = f'static_cast<decltype({text})>({text} + 1)'
        else:
            change = f'({text} + 1)'
        shown = change if kind in (K.CXX_BOOL_LITERAL_EXPR, K.STRING_LITERAL) else f'{text} + 1'
        self.add(node, context, f'{text} to {shown}', change)

    def change_constant(self, node, context):
        declared = node.referenced
        if declared is None or declared.kind != K.VAR_DECL or node.type.get_canonical().kind not in NUMBERS or \
                node.type.get_canonical().kind in (TypeKind.ENUM, TypeKind.BOOL, TypeKind.DEPENDENT):
            return
        text = self.of(node)
        if re.fullmatch(r'[\w:]+', text) and 'constexpr' in [t.spelling for t in declared.get_tokens()]:
            self.add(node, context, f'{text} to {text} + 1', f'({text} + 1)')

    def condition_of(self, node, children):
        kind = node.kind
        if any(c.kind in (K.DECL_STMT, K.VAR_DECL) for c in children[:-1]) and kind != K.FOR_STMT:
            return None
        if kind == K.IF_STMT:
            words = self.tokens_between(node.extent.start.offset, node.extent.end.offset)
            return children[0] if words[1].spelling != 'constexpr' else None
        if kind in (K.WHILE_STMT, K.CONDITIONAL_OPERATOR):
            return children[0]
        if kind == K.DO_STMT:
            return children[-1]
        if kind == K.FOR_STMT:
            return next((c for c in children[:-1] if c.kind.is_expression() and self.ends_at_semicolon(c)), None)
        return None

    def ends_at_semicolon(self, node):
        end = node.extent.end.offset
        return [t.spelling for t in self.tokens_between(end, end + 200)[:1]] == [';']

    def negate(self, condition, context):
        """Unless that is what another mutant of it does."""
        children = list(condition.get_children())
        while condition.kind in (K.PAREN_EXPR, K.UNEXPOSED_EXPR) and len(children) == 1:
            condition, children = children[0], list(children[0].get_children())
        text = self.of(condition)
        if condition.kind == K.UNARY_OPERATOR and text.startswith('!'):
            return
        if len(children) >= 2 and condition.kind in (K.BINARY_OPERATOR, K.CALL_EXPR):
            token = self.operator_between(children[0], children[-1])
            if token is not None and token.spelling in ('==', '!='):
                return
        self.add(condition, context, 'condition negated', f'!({text})', as_bool=True)

    # The file anew

    def written(self, dropped=()):
        """The file with its mutants, and where each of them stands in it: [(start, end, mutant)]."""
        places = []
        for place in self.ordered():
            kept = [m for m in place.mutants if m.key not in dropped]
            if kept:
                copy = Place(place.start, place.end, place.kind)
                copy.mutants, copy.as_bool = kept, place.as_bool
                places.append(copy)
        roots, open_places = [], []
        for place in places:
            while open_places and open_places[-1].end <= place.start:
                open_places.pop()
            if open_places and open_places[-1].end < place.end:
                raise RuntimeError(f'{self.name}: places cross at {self.line_at(place.start)}')
            (open_places[-1].inside if open_places else roots).append(place)
            open_places.append(place)
        out, spans = [], []
        self.length = 0

        def put(text):
            data = text.encode() if isinstance(text, str) else text
            out.append(data)
            self.length += len(data)

        variables = {m.constant for place in places for m in place.mutants}
        freed = [span for name, span in self.constants.items() if name in variables]

        def original(start, end):
            text = self.bytes[start:end]
            for first, last in freed:
                if start <= first < end:
                    text = text[:first - start] + b' ' * (last - first) + text[last - start:]
            put(text)

        def between(start, end, inside):
            for place in inside:
                original(start, place.start)
                render(place)
                start = place.end
            original(start, end)

        def render(place):
            statement = place.kind != 'expression'
            put('{ ' if statement else '(')
            for mutant in place.mutants:
                begin = self.length
                if place.kind == 'statement':
                    put(f'if (!{mutant.switch()}) ')
                elif place.kind == 'return':
                    put(f'if ({mutant.switch()}) {one_line(mutant.text)} ')
                else:
                    put(f'{mutant.switch()} ? ({one_line(mutant.text)}) : ')
                spans.append((begin, self.length, mutant))
            if not statement:
                put('static_cast<bool>(' if place.as_bool else '(')
            begin = self.length
            between(place.start, place.end, place.inside)
            spans.extend((begin, self.length, m) for m in place.mutants)
            put(' }' if statement else '))')

        between(0, len(self.bytes), roots)
        return b''.join(out), spans


def one_line(text):
    """Lines keep their numbers: a line comment would swallow the rest."""
    return ' '.join(re.sub(r'//.*', '', line) if '"' not in line else line for line in text.split('\n'))


def culprits(text, spans, offset):
    """The mutants of the innermost place around an error, or else all on its line."""
    around = [(end - start, mutant) for start, end, mutant in spans if start <= offset < end]
    if around:
        least = min(size for size, _ in around)
        return [mutant for size, mutant in around if size == least]
    first, last = text.rfind(b'\n', 0, offset) + 1, text.find(b'\n', offset)
    return [mutant for start, end, mutant in spans if first <= start < last]


def errors_of(path, text, arguments):
    """Byte offsets and texts of the errors in `text` as the contents of `path`, and of the notes that explain them."""
    unit = Index.create().parse(str(path), args=arguments, unsaved_files=[(str(path), text.decode())])
    return [(d.location.offset if d.location.file is not None and d.location.file.name == str(path) else None, d.spelling)
            for error in unit.diagnostics if error.severity >= 3 for d in (error, *error.children)]
