#!/usr/bin/python3
"""Checks that README's table of packages and Scripts/paquetes.txt have all that the build looks for.

Every find_ and pkg_check_modules of the CMake files must be named below with its Debian package; where that package is
installed, the file named beside it must be in it. Whatever README names for Debian the scripts must install.
"""
import pathlib
import re
import subprocess
import sys

raiz = pathlib.Path(__file__).resolve().parent.parent

# What the CMake files look for: Debian's package, and the end of a file's name in it.
HALLAZGOS = {
    "Threads": ("g++", ""),
    "PkgConfig": ("pkgconf", "/pkg-config"),
    "dbus-1": ("libdbus-1-dev", "/dbus-1.pc"),
    "simdjson": ("libsimdjson-dev", "/simdjson.h"),
    "rapidjson/reader.h": ("rapidjson-dev", "/rapidjson/reader.h"),
    "CLI/CLI.hpp": ("libcli11-dev", "/CLI/CLI.hpp"),
    "utf8proc.h": ("libutf8proc-dev", "/utf8proc.h"),
    "utf8proc": ("libutf8proc-dev", "/libutf8proc.so"),
    "curses.h": ("libncurses-dev", "/curses.h"),
    "ncursesw": ("libncurses-dev", "/libncursesw.so"),
    "ncurses": ("libncurses-dev", "/libncurses.so"),
    "tinfo": ("libncurses-dev", "/libtinfo.so"),
    "vterm.h": ("libvterm-dev", "/vterm.h"),
    "vterm": ("libvterm-dev", "/libvterm.so"),
    "xcb/xcb.h": ("libxcb1-dev", "/xcb/xcb.h"),
    "xcb": ("libxcb1-dev", "/libxcb.so"),
    "xcb-res": ("libxcb-res0-dev", "/libxcb-res.so"),
    "xcb-xinput": ("libxcb-xinput-dev", "/libxcb-xinput.so"),
    "xcb-xtest": ("libxcb-xtest0-dev", "/libxcb-xtest.so"),
    "wayland-client": ("libwayland-dev", "/libwayland-client.so"),
    "wayland-scanner": ("libwayland-bin", "/wayland-scanner"),
    "xdg-activation/xdg-activation-v1.xml": ("wayland-protocols", "/xdg-activation-v1.xml"),
    "Qt6 Widgets": ("qt6-base-dev", "/Qt6WidgetsConfig.cmake"),
    "Qt6 DBus": ("qt6-base-dev", "/Qt6DBusConfig.cmake"),
    "Qt6 GuiPrivate": ("qt6-base-private-dev", "/qpa/qplatformwindow.h"),
    "Qt6 Quick": ("qt6-declarative-dev", "/Qt6QuickConfig.cmake"),
    "Qt6 QuickTest": ("qt6-declarative-dev", "/Qt6QuickTestConfig.cmake"),
    "GTest": ("libgtest-dev", "/GTestConfig.cmake"),
}
ORDENES = re.compile(r"\b(find_(?:package|library|path|program|file)|pkg_check_modules)\(([^()]*)\)")
# The other system's build only, which README has in a column of its own.
AJENOS = ("Scripts/darwin/", "Scripts/cmake/Objc.cmake", "Scripts/cmake/FuentesDeMac.cmake")
faltas = []


def de_git(*patrones):
    salida = subprocess.run(["git", "ls-files", "--", *patrones], cwd=raiz, check=True, capture_output=True, text=True)
    return [raiz / linea for linea in salida.stdout.splitlines()]


def nombres(orden, palabras):
    if orden == "find_package" and palabras[0] == "Qt6":
        return ["Qt6 " + cada for cada in palabras[palabras.index("COMPONENTS") + 1:]]
    return [palabras[{"find_package": 0, "pkg_check_modules": -1}.get(orden, 1)]]


def buscados():
    for archivo in de_git("*CMakeLists.txt", "*.cmake"):
        if str(archivo.relative_to(raiz)).startswith(AJENOS):
            continue
        for orden, dentro in ORDENES.findall(archivo.read_text()):
            for nombre in nombres(orden, dentro.split()):
                yield nombre, archivo.relative_to(raiz)


def columnas():
    """README's table: for each row what it is for, and its cells."""
    tabla = re.search(r"^\| for \|.*?(?=\n\n)", (raiz / "README.md").read_text(), re.S | re.M)
    filas = [[celda.strip() for celda in linea.strip("|").split("|")] for linea in tabla[0].splitlines()]
    return filas[0], filas[2:]


def instalados():
    lineas = (raiz / "Scripts/paquetes.txt").read_text().splitlines()
    return {linea.split()[1] for linea in lineas if linea and not linea.startswith("#")}


def archivos(paquete):
    salida = subprocess.run(["dpkg-query", "-L", paquete], check=False, capture_output=True, text=True)
    return salida.stdout.splitlines() if salida.returncode == 0 else None


def comprueba():
    cabecera, filas = columnas()
    for fila in filas:
        if len(fila) != len(cabecera) or not all(fila):
            faltas.append(f"README.md: the row '{fila[0]}' does not name something for every system")
    nombrados = {paquete for fila in filas for paquete in fila[1].split()}
    for paquete in sorted(nombrados - instalados()):
        faltas.append(f"README.md names {paquete}, which Scripts/paquetes.txt does not install")
    vistos = dict(buscados())
    for nombre, donde in sorted(vistos.items()):
        if nombre not in HALLAZGOS:
            faltas.append(f"{donde} looks for {nombre}: say in Scripts/paquetes.py which package has it")
        elif HALLAZGOS[nombre][0] not in nombrados:
            faltas.append(f"{donde} looks for {nombre}: README.md does not name {HALLAZGOS[nombre][0]}")
    for nombre in sorted(HALLAZGOS.keys() - vistos.keys()):
        faltas.append(f"Scripts/paquetes.py: nothing looks for {nombre} any more")
    for paquete, fin in HALLAZGOS.values():
        dentro = archivos(paquete)
        if fin and dentro is not None and not any(cada.endswith(fin) for cada in dentro):
            faltas.append(f"Scripts/paquetes.py: {paquete} has no {fin}")


comprueba()
print("\n".join(faltas), file=sys.stderr, end="\n" if faltas else "")
sys.exit(bool(faltas))
