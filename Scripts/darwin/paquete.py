"""Checks the macOS bundle's files. Takes the folder in which paquete.sh put what it made."""

import hashlib
import pathlib
import plistlib
import re
import struct
import sys

made = pathlib.Path(sys.argv[1])
packaging = pathlib.Path("Packaging/macOS")
version = re.search(r"project\(Zorve VERSION (\S+)", pathlib.Path("CMakeLists.txt").read_text())[1]


def check(holds, what):
    if not holds:
        sys.exit(f"paquete.py: {what}")


def sha256(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def check_info():
    text = (packaging / "Info.plist.in").read_text().replace("@PROJECT_VERSION@", version)
    check("@" not in text, "Info.plist.in has a placeholder that the build does not fill")
    info = plistlib.loads(text.encode())
    wanted = {
        "CFBundleIdentifier": "com.sarnol.zorve",
        "CFBundleExecutable": "Zorve",
        "CFBundleIconFile": "Zorve",
        "CFBundlePackageType": "APPL",
        "CFBundleShortVersionString": version,
        "CFBundleVersion": version,
        "CFBundleDevelopmentRegion": "en",
        "CFBundleLocalizations": ["en", "es"],
        "LSUIElement": True,
        "LSMinimumSystemVersion": "13.0",
        "LSApplicationCategoryType": "public.app-category.developer-tools",
        "NSPrincipalClass": "NSApplication",
    }
    for key, value in wanted.items():
        check(info.get(key) == value, f"Info.plist: {key} is {info.get(key)!r}, not {value!r}")
    return info


def check_texts(info):
    texts = {}
    for language in ("en", "es"):
        source = (packaging / f"{language}.lproj/InfoPlist.strings").read_text(encoding="utf-8")
        pairs = dict(re.findall(r'^"(\w+)" = "([^"\\]+)";$', source, re.M))
        check(len(pairs) == len(source.splitlines()), f"{language}: a line is no pair")
        check(list(pairs) == ["NSAppleEventsUsageDescription"], f"{language}: other keys than the one meant")
        texts[language] = pairs["NSAppleEventsUsageDescription"]
    check(texts["en"] == info["NSAppleEventsUsageDescription"], "the English text differs from Info.plist's")
    check(texts["en"] != texts["es"], "both languages have one text")


def check_entitlements():
    entitlements = plistlib.loads((packaging / "Zorve.entitlements").read_bytes())
    check(entitlements == {"com.apple.security.automation.apple-events": True}, "entitlements are not the one")


def entries(icns):
    check(icns[:4] == b"icns" and struct.unpack(">I", icns[4:8])[0] == len(icns), "the icon set's head is wrong")
    at, found = 8, {}
    while at < len(icns):
        kind, size = icns[at:at + 4], struct.unpack(">I", icns[at + 4:at + 8])[0]
        png = icns[at + 8:at + size]
        check(png[:8] == b"\x89PNG\r\n\x1a\n", f"{kind} is no PNG")
        found[kind.decode()] = struct.unpack(">II", png[16:24])
        at += size
    return found


def check_icon():
    sides = {"icp4": 16, "icp5": 32, "ic07": 128, "ic08": 256, "ic09": 512, "ic11": 32, "ic12": 64, "ic13": 256,
             "ic14": 512, "ic10": 1024}
    wanted = {kind: (side, side) for kind, side in sides.items()}
    for path in (packaging / "Zorve.icns", made / "Zorve.icns"):
        check(entries(path.read_bytes()) == wanted, f"{path}: sizes are not the ten wanted")
    drawing = re.search(r"^([0-9a-f]{64})", (packaging / "Zorve.icns.sha256").read_text(), re.M)[1]
    check(drawing == sha256(packaging.parent / "zorve.svg"),
          "the icon set was made from another drawing: Packaging/macOS/icono.sh Packaging/macOS/Zorve.icns")


def check_homebrew():
    cask = (made / "tap/Casks/zorve.rb").read_text()
    formula = (made / "tap/Formula/zorvectl.rb").read_text()
    for name, text in (("cask", cask), ("formula", formula)):
        check(not re.search(r"@[A-Z_]+@", text), f"the {name} has a placeholder left")
        opened = len(re.findall(r"\bdo\b|^class\b|^\s*def\b", text, re.M))
        check(opened == len(re.findall(r"^\s*end$", text, re.M)), f"the {name}'s blocks do not close")
    check(f'version "{version}"' in cask, "the cask has another version")
    check(f'url "https://example.org/zorve/zorve-{version}.tar.gz"' in formula,
          "the formula's address, which is where its version stands, has another version")
    image = sha256(made / "Zorve-0.1.0.dmg")
    check(f'sha256 "{image}"' in cask and 'url "https://example.org/zorve/Zorve-0.1.0.dmg"' in cask,
          "the cask's image is another")
    check(sha256(made / "zorve-0.1.0.tar.gz") in formula, "the formula's sources are others")
    pinned = re.findall(r"[0-9a-f]{64}", pathlib.Path("Scripts/cmake/FuentesDeMac.cmake").read_text())
    check(len(pinned) == 5 and all(one in formula for one in pinned),
          "the formula pins other library sources than the build")


check_texts(check_info())
check_entitlements()
check_icon()
check_homebrew()
