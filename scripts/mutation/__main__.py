"""Runs the tests with every change of the rules; started by scripts/mutate."""

import collections
import concurrent.futures
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))

import changes
import equivalent
import quality_table
import tested

CALC, COMPARISON, SORTS = "calc_tests", "comparison_tests", "worksheet_model_tests"
SOURCES = {
    "calc/Money.h": CALC, "calc/Money.cpp": CALC, "calc/Date.h": CALC, "calc/Date.cpp": CALC,
    "calc/DueDates.h": CALC, "calc/Frequency.h": CALC, "calc/Frequency.cpp": CALC,
    "calc/Payment.cpp": CALC, "calc/Quantities.h": CALC, "calc/Quantities.cpp": CALC,
    "calc/Schedule.h": CALC, "calc/Schedule.cpp": CALC,
    "calc/CLoan.h": CALC, "calc/CLoan.cpp": CALC,
    "comparison/AccrualPeriods.h": COMPARISON, "comparison/AccrualPeriods.cpp": COMPARISON,
    "comparison/AccruedInterest.cpp": COMPARISON, "comparison/ActuarialRate.h": COMPARISON,
    "comparison/ActuarialRate.cpp": COMPARISON, "comparison/Cents.h": COMPARISON,
    "comparison/ComparedCurrent.h": COMPARISON,
    "comparison/ComparedCurrent.cpp": COMPARISON, "comparison/ComparedOffer.h": COMPARISON,
    "comparison/ComparedOffer.cpp": COMPARISON, "comparison/Comparison.h": COMPARISON,
    "comparison/Comparison.cpp": COMPARISON, "comparison/CostByMonth.h": COMPARISON,
    "comparison/CostByMonth.cpp": COMPARISON, "comparison/LeastNumber.h": COMPARISON,
    "comparison/LoanSchedule.h": COMPARISON, "comparison/LoanSchedule.cpp": COMPARISON,
    "comparison/OverTime.h": COMPARISON, "comparison/OverTime.cpp": COMPARISON,
    "comparison/PaymentOfMonthly.h": COMPARISON, "comparison/ScheduleEnd.cpp": COMPARISON,
    "comparison/Solving.cpp": COMPARISON,
    "worksheet/model/OfferOrder.h": SORTS, "worksheet/model/SortKeys.cpp": SORTS,
    "worksheet/model/WorksheetSorting.cpp": SORTS,
}
JOBS = 1


def all_changes(files, tree):
    constants = set().union(*(changes.constants_of(tree.source(file)) for file in SOURCES))
    found = [change for file in files
             for change in changes.changes_of(file, tree.source(file), constants)]
    # Changes of one body have consecutive numbers, so that a run finds its own by two comparisons.
    for number, change in enumerate(found, 1):
        change.number = number
    return found


def verdicts(found, tree):
    """The result of each change: killed, timeout, rejected (by the compiler) or survived."""
    rejected = tree.build_joined(found)
    for target in {SOURCES[change.file] for change in found}:
        tree.measure(target)
    result = {change.number: "rejected" for change in rejected}
    left = [change for change in found if change.number not in result]
    with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
        runs = {pool.submit(tree.run, SOURCES[change.file], change.number): change for change in left}
        for run in concurrent.futures.as_completed(runs):
            change = runs[run]
            result[change.number] = run.result()
            if result[change.number] != "killed":
                print(f"{result[change.number]}: {change.file}: {change.line}: {change.what}", flush=True)
    return result


def judge(found, result):
    """Marks the survivors that are equivalent; returns the faults of their table."""
    faults = []
    for row in equivalent.CHANGES:
        file, line, what, _ = row[:4]
        times = row[4] if len(row) > 4 else 1
        matching = [change for change in found
                    if (change.file, change.line, change.what) == (file, line, what)]
        if not matching and file in {change.file for change in found}:
            faults.append(f"no such change: {file}: {line}: {what}")
        survived = [change for change in matching if result[change.number] == "survived"]
        if matching and len(survived) != times:
            faults.append(f"{len(survived)} unnoticed, not {times}: {file}: {line}: {what}")
        for change in survived:
            result[change.number] = "equivalent"
    return faults


def table(found, result):
    kinds = ("killed", "timeout", "rejected", "equivalent", "survived")
    count = collections.Counter((change.file, result[change.number]) for change in found)
    lines = ["| source | changes | noticed | by running on | by the compiler | equivalent | unnoticed |",
             "| --- | --: | --: | --: | --: | --: | --: |"]
    files = list(dict.fromkeys(change.file for change in found))
    for file in files:
        counts = [count[file, kind] for kind in kinds]
        lines.append(f"| `{file}` | {sum(counts)} | " + " | ".join(map(str, counts)) + " |")
    totals = [sum(count[file, kind] for file in files) for kind in kinds]
    return lines + [f"| **all** | {sum(totals)} | " + " | ".join(map(str, totals)) + " |"]


def main(arguments):
    keep = "--keep" in arguments
    files = [argument for argument in arguments if argument != "--keep"] or list(SOURCES)
    unknown = set(files) - set(SOURCES)
    if unknown:
        raise SystemExit(f"no rules in {', '.join(unknown)}, but in {', '.join(SOURCES)}")
    tree = tested.Tree()
    found = all_changes(files, tree)
    result = verdicts(found, tree)
    faults = judge(found, result)
    lines = table(found, result)
    print("\n".join(lines))
    for change in found:
        if result[change.number] == "survived":
            faults.append(f"unnoticed: {change.file} ({change.number}): {change.line}: {change.what}")
    if keep:
        quality_table.keep("changes", lines)
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
