"""Checks that the reference documents every exported name.  documented.py EXPORTS XML_DIRECTORY"""

import pathlib
import sys
import xml.etree.ElementTree as tree

exports, directory = map(pathlib.Path, sys.argv[1:])
texts = {}
for page in directory.glob("*.xml"):
    for member in tree.parse(page).getroot().iter("memberdef"):
        brief = "".join(member.find("briefdescription").itertext())
        detailed = "".join(member.find("detaileddescription").itertext())
        texts[member.findtext("name")] = f"{brief} {detailed}".strip()

names = [line.split()[1] for line in exports.read_text().splitlines()]
silent = [name for name in names if len(texts.get(name, "").split()) < 3]
for name in silent:
    print(f"{name} is exported and not documented")
if len(names) < 4000:
    sys.exit(f"only {len(names)} exported names were found")
print(f"{len(names) - len(silent)} of {len(names)} exported names are documented")
sys.exit(1 if silent else 0)
