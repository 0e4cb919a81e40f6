#!/usr/bin/env python3
"""tables.py RESULTS MESSAGES DOCUMENT CHART: prints what scripts/compare has measured as tables in Markdown, puts them
into the document between its two comments, and draws the chart."""
import math
import os
import re
import statistics
import sys

PARSERS = {"telsx": "telsx", "sofia": "Sofia-SIP", "osip": "libosip2", "re": "libre"}
JOBS = ["screen", "route", "hop"]
MESSAGES = {"invite": "INVITE", "ok": "200", "register": "REGISTER", "options": "OPTIONS", "large": "large INVITE"}
SHAPES = {"same-name": "headers of one name", "distinct": "headers of n names",
          "via-parameters": "parameters of a Via", "contacts": "values of a Contact"}

results, messages, document, chart = sys.argv[1:]
output = []


def size(message):
    return os.path.getsize(f"{messages}/{message}.sip")


def read(part, keys):
    """The results of a part by their first so many columns; where a key comes more than once, the median."""
    if not os.path.exists(f"{results}/{part}"):
        return {}
    found = {}
    for line in open(f"{results}/{part}"):
        words = line.split()
        found.setdefault(tuple(words[:keys]), []).append([float(word) for word in words[keys:]])
    return {key: [statistics.median(column) for column in zip(*rows)] for key, rows in found.items()}


def number(value, digits=0):
    return "–" if value is None else f"{value:,.{digits}f}"


def table(title, header, rows):
    rows = [[str(cell) for cell in row] for row in rows]
    if any(set(row[2:]) - {"–"} for row in rows):
        output.append(f"\n### {title}\n")
        output.append("| " + " | ".join(header) + " |")
        texts = 1 if header[1].startswith(("telsx", "bytes")) else 2
        output.append("|" + "---|" * texts + "---:|" * (len(header) - texts))
        for row in rows:
            output.append("| " + " | ".join(row) + " |")


def jobs_table(title, values, cell):
    """A row for each message and job, a column for each parser, and the ratio to Sofia-SIP."""
    rows = []
    for message in MESSAGES:
        for job in JOBS:
            found = {parser: values.get((parser, job, message)) for parser in PARSERS}
            row = [MESSAGES[message] if job == JOBS[0] else "", job]
            row += [cell(found[parser]) if found[parser] else "–" for parser in PARSERS]
            ratio = found["telsx"] and found["sofia"] and found["telsx"][0] / found["sofia"][0]
            rows.append(row + [number(ratio or None, 2)])
    table(title, ["message", "job", *PARSERS.values(), "telsx / Sofia-SIP"], rows)


def slope(points):
    """The exponent of the growth, by least squares of the logarithms."""
    if not points:
        return None
    logs = [(math.log(n), math.log(ns)) for n, ns in points]
    x, y = (statistics.mean(axis) for axis in zip(*logs))
    return sum((a - x) * (b - y) for a, b in logs) / sum((a - x) ** 2 for a, _ in logs)


def grow_table(times, instructions):
    counts = sorted({int(key[2]) for key in times})
    rows = []
    for shape in SHAPES:
        for parser in PARSERS:
            def points(values):
                return [(n, values[parser, shape, str(n)][0]) for n in counts if (parser, shape, str(n)) in values]
            row = [SHAPES[shape] if parser == "telsx" else "", PARSERS[parser]]
            row += [number(ns / 1000) for _, ns in points(times)] or ["–"] * len(counts)
            rows.append(row + [number(slope(points(values)), 2) for values in (times, instructions)])
    table("Growth: microseconds for n of the same, and the exponents of time and instructions",
          ["n of", "parser", *(f"{n:,}" for n in counts), "time", "instructions"], rows)


STYLE = """
text { font: 13px system-ui, sans-serif; fill: #1f2328 }
.title { font-weight: 600; font-size: 15px } .note { fill: #59636e; font-size: 12px } .axis { stroke: #d1d9e0 }
.telsx { fill: #1a7f37 } .sofia { fill: #54aeff } .osip { fill: #8c959f } .re { fill: #bf8700 }
@media (prefers-color-scheme: dark) {
text { fill: #f0f6fc } .note { fill: #9198a1 } .axis { stroke: #3d444d }
.telsx { fill: #3fb950 } .sofia { fill: #388bfd } .osip { fill: #6e7681 } .re { fill: #d29922 }
}
"""


def draw(values):
    """Bars of the nanoseconds for the INVITE, in a group for each job."""
    width, left, right, bar, group = 720, 130, 90, 20, 26
    parts, y = [], 70
    longest = max(ns[0] for key, ns in values.items() if key[2] == "invite")
    for job in JOBS:
        top = y
        for parser in PARSERS:
            if (parser, job, "invite") in values:
                ns = values[parser, job, "invite"][0]
                length = ns / longest * (width - left - right)
                parts.append(f'<rect class="{parser}" x="{left}" y="{y}" width="{length:.1f}" height="{bar - 4}"/>')
                parts.append(f'<text x="{left + length + 6:.1f}" y="{y + 13}">{number(ns)}</text>')
                parts.append(f'<text x="{left - 8}" y="{y + 13}" text-anchor="end">{PARSERS[parser]}</text>')
                y += bar
        parts.append(f'<text class="title" x="16" y="{top + 13}">{job}</text>')
        y += group
    height = y - group + 16
    heading = f"Nanoseconds for an INVITE of {size('invite')} bytes"
    with open(chart, "w") as out:
        out.write(f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" '
                  f'height="{height}" role="img" aria-label="{heading}">\n<style>{STYLE}</style>\n')
        out.write(f'<text class="title" x="16" y="24">{heading}; less is better</text>\n')
        out.write('<text class="note" x="16" y="44">screen: decode and release; route: and read the values that '
                  'routing needs; hop: and edit as a proxy, encode</text>\n')
        out.write(f'<line class="axis" x1="{left - 2}" y1="62" x2="{left - 2}" y2="{height - 12}"/>\n')
        out.write("\n".join(parts) + "\n</svg>\n")


output.append(open(f"{results}/machine").read().strip())
times = read("time", 3)
jobs_table("Time: nanoseconds for a message", times, lambda cell: number(cell[0]))
jobs_table("Work: instructions for a message", read("instructions", 3), lambda cell: number(cell[0]))
jobs_table("Heap: calls (bytes) for a message", read("heap", 3), lambda cell: f"{number(cell[0])} ({number(cell[1])})")
grow_table(read("grow", 3), read("growth", 3))
pairs = read("threads", 3)
table("Two threads: times the work of one, INVITE", ["job", *PARSERS.values()],
      [[job, *(number(pairs.get((parser, job, "invite"), [None])[0], 2) for parser in PARSERS)] for job in JOBS])
streams = read("stream", 2)
table("Stream of 10,000 messages", ["message", "bytes", "GB/s"],
      [[name, number(size(message)), number(streams.get(("telsx", message), [None])[0], 2)]
       for message, name in MESSAGES.items()])
if times:
    draw(times)

text = "\n".join(output)
print(text)
filled = re.sub(r"(<!-- tables.*?-->\n).*(<!-- end)", lambda part: f"{part[1]}\n{text}\n\n{part[2]}",
                open(document).read(), flags=re.S)
open(document, "w").write(filled)
