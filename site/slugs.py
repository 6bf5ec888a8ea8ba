"""Anchors of headings, the same on the site and where the sources are read on a code host."""
import re


def slug_of(heading: str, separator: str = "-") -> str:
    """Small letters, hyphens for blanks, and nothing but letters, digits, `_` and hyphens."""
    text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading)
    text = re.sub(r"[^\w\- ]", "", text.strip().lower())
    return text.replace(" ", separator)
