"""Counts the words of each line."""
import sys

for line in sys.stdin:
    print(len(line.split()), line, end="")
