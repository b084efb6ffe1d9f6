"""What is told of a screen, as lines of text."""
import pyatspi

STATES = {
    pyatspi.STATE_CHECKED: "checked",
    pyatspi.STATE_EXPANDED: "expanded",
    pyatspi.STATE_COLLAPSED: "collapsed",
    pyatspi.STATE_FOCUSABLE: "focusable",
}


def number(value):
    return f"{value:g}"


def described(element):
    """Its role, name and description, its value between the least and the greatest, and its states."""
    parts = [element.getRoleName(), f"'{element.name}'"]
    if element.description:
        parts.append(f"({element.description})")
    try:
        value = element.queryValue()
        parts.append(" < ".join(number(one) for one in (value.minimumValue, value.currentValue, value.maximumValue)))
    except NotImplementedError:
        pass
    states = element.getState()
    parts += [name for state, name in STATES.items() if states.contains(state)]
    if not states.contains(pyatspi.STATE_ENABLED):
        parts.append("disabled")
    return " ".join(parts)


def lines(element, depth=0):
    yield "  " * depth + described(element)
    for child in element:
        yield from lines(child, depth + 1)
