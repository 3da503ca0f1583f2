#!/usr/bin/python3
"""version_test.py VERSION DATE SOURCE BUILD: the version and its day are the same in the changelog, the
metainfo, the manual page, the package's changelog and the program itself."""

import email.utils
import pathlib
import re
import sys
import xml.etree.ElementTree


def expect(found, wanted, where):
    if found != wanted:
        raise AssertionError(f"{where}: {found} instead of {wanted}")
    print(f"ok: {where}")


def changelog(source):
    """Version and day of the newest section."""
    heading = re.search(r"^## (.*)$", (source / "CHANGELOG.md").read_text(), re.M).group(1)
    return tuple(heading.split(" - "))


def metainfo(packaging):
    newest = xml.etree.ElementTree.parse(
        packaging / "org.kelvarine.kelvarine.metainfo.xml").find("releases/release")
    return newest.get("version"), newest.get("date")


def manual_page(packaging):
    title = (packaging / "kelvarine.6").read_text().splitlines()[0]
    day, version = re.match(r'\.TH KELVARINE 6 "([^"]+)" "Kelvarine ([^"]+)"', title).groups()
    return version, day


def package_changelog(packaging):
    text = (packaging / "changelog").read_text()
    version = re.match(r"kelvarine \(([^)]+)\)", text).group(1)
    signed = re.search(r"^ -- .*>  (.*)$", text, re.M).group(1)
    return version, email.utils.parsedate_to_datetime(signed).date().isoformat()


def main():
    version, day, source, build = sys.argv[1:]
    packaging = pathlib.Path(build) / "packaging"
    expect(changelog(pathlib.Path(source)), (version, day), "the changelog")
    expect(metainfo(packaging), (version, day), "the metainfo")
    expect(manual_page(packaging), (version, day), "the manual page")
    expect(package_changelog(packaging), (version, day), "the package's changelog")
    # About asks the program for its version, which stands there as the toolkit's text: to its end, and
    # not as the end of a longer one.
    program = (pathlib.Path(build) / "kelvarine").read_bytes()
    text = re.escape(f"{version}\0".encode("utf-16-le"))
    expect(re.search(rb"(?<![0-9.]\0)" + text, program) is not None, True, "the program")


if __name__ == "__main__":
    main()
