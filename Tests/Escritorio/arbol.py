#!/usr/bin/python3 -Wignore::DeprecationWarning
"""What a screen reader learns of a program, and what it can do with it.

arbol.py PROGRAM              one line a node, indented by its depth: role "name" (description) [states]
arbol.py PROGRAM pulsa NAME   presses what has that name
arbol.py PROGRAM oye          from now on one line a node that it is told to read: role "name"
"""
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

ESTADOS = ["focused", "focusable", "selected", "selectable", "checked", "editable"]
# What newer versions call what older ones called otherwise.
PAPELES = {"button": "push button"}


def estados(nodo):
    conjunto = nodo.get_state_set()
    return [e for e in ESTADOS if conjunto.contains(getattr(Atspi.StateType, e.upper()))]


def papel(nodo):
    nombre = nodo.get_role_name()
    return PAPELES.get(nombre, nombre)


def cuenta(nodo, hondo):
    if not nodo.get_state_set().contains(Atspi.StateType.VISIBLE) and hondo > 0:
        return
    descripcion = nodo.get_description()
    partes = ["  " * hondo + papel(nodo), '"' + nodo.get_name() + '"']
    if descripcion:
        partes.append("(" + descripcion + ")")
    if estados(nodo):
        partes.append("[" + " ".join(estados(nodo)) + "]")
    print(" ".join(partes))
    for i in range(nodo.get_child_count()):
        hijo = nodo.get_child_at_index(i)
        if hijo is not None:
            cuenta(hijo, hondo + 1)


def programa():
    escritorio = Atspi.get_desktop(0)
    for i in range(escritorio.get_child_count()):
        hijo = escritorio.get_child_at_index(i)
        if hijo is not None and hijo.get_name() == sys.argv[1]:
            return hijo
    sys.exit(f"no program named {sys.argv[1]} is known to screen readers")


def pulsa(nodo, nombre):
    acciones = [nodo.get_action_name(i) for i in range(nodo.get_n_actions())]
    if nodo.get_name() == nombre and "Press" in acciones:
        return nodo.do_action(acciones.index("Press"))
    hijos = (nodo.get_child_at_index(i) for i in range(nodo.get_child_count()))
    return any(pulsa(hijo, nombre) for hijo in hijos if hijo is not None)


def oye():
    def leido(aviso):
        if aviso.detail1:
            print(f'{papel(aviso.source)} "{aviso.source.get_name()}"', flush=True)

    oyente = Atspi.EventListener.new(leido)
    oyente.register("object:state-changed:focused")
    print("listening", flush=True)
    Atspi.event_main()


if sys.argv[2:3] == ["oye"]:
    oye()
elif sys.argv[2:3] == ["pulsa"]:
    pulsa(programa(), sys.argv[3]) or sys.exit(f"nothing named {sys.argv[3]} can be pressed")
else:
    cuenta(programa(), 0)
