#!/usr/bin/python3
"""The same drawing as a script of a few lines makes it: with_ezdxf.py FILE OUT.dxf"""
import csv
import sys

import ezdxf

HEIGHT, OFFSET = 200.0, 120.0  # what the program chooses for ten kilometres

drawing = ezdxf.new("R2007")
space, members = drawing.modelspace(), []
with open(sys.argv[1], encoding="utf-8", newline="") as file:
    for number, *values in csv.reader(file, delimiter=";"):
        y, x, z = (float(value.replace(",", ".")) for value in values)
        members.append(space.add_point((x, y, z)))
        members.append(space.add_text(number, dxfattribs={"insert": (x + OFFSET, y + OFFSET, z), "height": HEIGHT}))
drawing.groups.new("PIKIETY").extend(members)
drawing.saveas(sys.argv[2])
