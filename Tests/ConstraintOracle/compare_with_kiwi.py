#!/usr/bin/env python3
"""Compares the layout solver with kiwisolver on random systems of constraints.

Kiwi weighs its strengths where the layout solver compares them one after the other; with strengths a thousand times apart and
small coefficients both find the same errors of every strength, which is what is compared, together with the required constraints
that are refused. Exit status 77 without kiwisolver.

usage: compare_with_kiwi.py <SolveSystems program> [<systems>] [<seed>]
"""
import json
import os
import random
import subprocess
import sys

try:
    import kiwisolver
except ImportError:
    print("skipped: there is no kiwisolver")
    sys.exit(77)

STRENGTHS = {1000: "required", 750: "strong", 500: "medium", 250: "weak"}
TOLERANCE = 1e-4


def random_constraint(rng, variables):
    """(relation, priority, constant, [(variable, coefficient)]), most of it like what layouts say."""
    count = min(rng.choice([1, 2, 2, 2, 3, 4]), variables)
    terms = [(v, rng.choice([1, 1, 1, -1, -1, 0.5, 2])) for v in rng.sample(range(variables), count)]
    priority = rng.choices(list(STRENGTHS), weights=[4, 2, 2, 2])[0]
    return rng.choice([-1, 0, 0, 1]), priority, rng.randint(-200, 200), terms


def random_system(rng):
    variables = rng.randint(1, 10)
    return variables, [random_constraint(rng, variables) for _ in range(rng.randint(1, 3 * variables))]


def kiwi_constraint(unknowns, constraint):
    relation, priority, constant, terms = constraint
    expression = kiwisolver.Expression([kiwisolver.Term(unknowns[v], c) for v, c in terms], constant)
    return kiwisolver.Constraint(expression, {-1: "<=", 0: "==", 1: ">="}[relation], STRENGTHS[priority])


def solve_with_kiwi(system):
    variables, constraints = system
    unknowns = [kiwisolver.Variable(str(i)) for i in range(variables)]
    solver, accepted, taken = kiwisolver.Solver(), [], []
    for constraint in constraints:
        candidate = kiwi_constraint(unknowns, constraint)
        try:
            solver.addConstraint(candidate)
            accepted.append(candidate)
            taken.append(True)
        except kiwisolver.UnsatisfiableConstraint:
            # A kiwi solver is not to be relied on after a refusal: begin again with what it has taken.
            solver = kiwisolver.Solver()
            for known in accepted:
                solver.addConstraint(known)
            taken.append(False)
    solver.updateVariables()
    return taken, [unknown.value() for unknown in unknowns]


def solve_all_with_kiwi(systems):
    """The answers, None where kiwi gives up. It ends the process then, so it works in one of its own."""
    receiver, sender = os.pipe()
    child = os.fork()
    if child == 0:
        os.close(receiver)
        os.dup2(os.open(os.devnull, os.O_WRONLY), 2)
        with os.fdopen(sender, "w") as answers:
            for system in systems:
                answers.write(json.dumps(solve_with_kiwi(system)) + "\n")
                answers.flush()
        os._exit(0)
    os.close(sender)
    with os.fdopen(receiver) as answers:
        solved = [json.loads(line) for line in answers]
    os.waitpid(child, 0)
    if len(solved) == len(systems):
        return solved
    return solved + [None] + solve_all_with_kiwi(systems[len(solved) + 1:])


def as_text(system):
    variables, constraints = system
    lines = ["%d %d" % (variables, len(constraints))]
    for relation, priority, constant, terms in constraints:
        lines.append("%d %d %d %d %s" % (relation, priority, constant, len(terms), " ".join("%d %g" % t for t in terms)))
    return "\n".join(lines) + "\n"


def errors(system, values, taken):
    """The sum of errors of each strength, required first."""
    sums = dict.fromkeys(STRENGTHS, 0.0)
    for (relation, priority, constant, terms), is_taken in zip(system[1], taken):
        value = constant + sum(c * values[v] for v, c in terms)
        error = abs(value) if relation == 0 else max(0.0, -relation * value)
        if is_taken:
            sums[priority] += error
    return [sums[priority] for priority in STRENGTHS]


def main():
    program, count, seed = sys.argv[1], int((sys.argv + [0, 0])[2] or 3000), int((sys.argv + [0, 0])[3] or 1)
    rng = random.Random(seed)
    systems = [random_system(rng) for _ in range(count)]
    run = subprocess.run([program], input="".join(map(as_text, systems)), capture_output=True, text=True, check=True)
    lines = run.stdout.splitlines()
    failures = 0
    kiwi_answers = solve_all_with_kiwi(systems)
    for index, (system, kiwi_answer) in enumerate(zip(systems, kiwi_answers)):
        if kiwi_answer is None:
            continue
        kiwi_taken, kiwi_values = kiwi_answer
        taken = [field == "1" for field in lines[2 * index].split()]
        values = [float(field) for field in lines[2 * index + 1].split()]
        ours, kiwis = errors(system, values, taken), errors(system, kiwi_values, kiwi_taken)
        if taken != kiwi_taken or any(abs(a - b) > TOLERANCE for a, b in zip(ours, kiwis)):
            failures += 1
            if failures <= 3:
                print("system %d of seed %d:\n%s" % (index, seed, as_text(system)))
                print("taken  %s\nkiwi   %s" % (taken, kiwi_taken))
                print("values %s\nkiwi   %s" % (values, kiwi_values))
                print("errors %s\nkiwi   %s\n" % (ours, kiwis))
    print("%d systems, %d differ, kiwi gave up on %d" % (count, failures, kiwi_answers.count(None)))
    return 1 if failures or len(lines) != 2 * count or kiwi_answers.count(None) > count // 100 else 0


if __name__ == "__main__":
    sys.exit(main())
