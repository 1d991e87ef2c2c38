"""The sections of compare.py, and what they share."""
