/* exported init */
const {Clutter, Gio, GLib, Meta, St} = imports.gi;
const Main = imports.ui.main;
class Extension {}
