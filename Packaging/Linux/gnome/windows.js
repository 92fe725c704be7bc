const NAME = 'com.sarnol.zorve.Windows', PATH = '/com/sarnol/zorve/Windows';
const XML = `<node><interface name="${NAME}">
  <method name="List"><arg type="au" direction="in"/><arg type="a(uusb)" direction="out"/></method>
  <method name="Activate"><arg type="u" direction="in"/><arg type="b" direction="out"/></method>
  <method name="Hang"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
</interface></node>`;
const MARGIN = 6, PATIENCE = 2000;  // in points, in milliseconds

function windows() {
    return global.get_window_actors().map(actor => actor.meta_window).filter(window =>
        window && !window.is_override_redirect() && window.get_window_type() === Meta.WindowType.NORMAL);
}

function processOf(busName) {
    return new Promise(resolve => Gio.DBus.session.call('org.freedesktop.DBus', '/org/freedesktop/DBus',
        'org.freedesktop.DBus', 'GetConnectionUnixProcessID', new GLib.Variant('(s)', [busName]),
        new GLib.VariantType('(u)'), Gio.DBusCallFlags.NONE, PATIENCE, null, (bus, result) => {
            try {
                resolve(bus.call_finish(result).deepUnpack()[0]);
            } catch {
                resolve(0);
            }
        }));
}

async function iconOf(pid) {
    for (const [id, item] of Object.entries(Main.panel.statusArea)) {
        const busName = id.match(/^appindicator-([^@/]+)/)?.[1];
        if (item?.visible && busName && await processOf(busName) === pid)
            return item;
    }
    return null;
}

function between(value, low, high) {
    return Math.max(low, Math.min(value, high));
}

class Windows {
    constructor() {
        this._undo = new Map();
    }

    List(pids) {  // [(id, process, title, has the keyboard)] of these processes
        return windows().filter(window => pids.includes(window.get_pid())).map(window =>
            [window.get_stable_sequence(), window.get_pid(), window.get_title() ?? '', window.has_focus()]);
    }

    Activate(id) {  // minimised or on another workspace too; false: there is none
        const found = windows().find(window => window.get_stable_sequence() === id);
        if (found)
            Main.activateWindow(found, global.display.get_current_time_roundtrip());
        return !!found;
    }

    async HangAsync([width, height], invocation) {  // the caller's window of these proportions, also if it is still to come
        const pid = await processOf(invocation.get_sender());
        const icon = await iconOf(pid);
        const isIt = window => {
            const frame = window.get_frame_rect();
            return pid > 0 && window.get_pid() === pid && Math.abs(frame.width * height - frame.height * width) <= width + height;
        };
        const found = windows().find(isIt);
        if (found?.get_compositor_private().mapped)
            this._hang(found, icon);
        else
            this._await(isIt, window => this._hang(window, icon));
        invocation.return_value(null);
    }

    forget(key = null) {
        for (const one of key ? [key] : [...this._undo.keys()]) {
            this._undo.get(one)?.();
            this._undo.delete(one);
        }
    }

    _await(isIt, then) {
        this.forget('awaited');
        const map = global.window_manager.connect('map', (_manager, actor) => {
            if (!isIt(actor.meta_window))
                return;
            this.forget('awaited');
            then(actor.meta_window);
        });
        const end = GLib.timeout_add(GLib.PRIORITY_DEFAULT, PATIENCE, () => this.forget('awaited'));
        this._undo.set('awaited', () => {
            global.window_manager.disconnect(map);
            GLib.source_remove(end);
        });
    }

    _hang(window, icon) {
        const {width, height} = window.get_frame_rect();
        const margin = MARGIN * St.ThemeContext.get_for_stage(global.stage).scale_factor;
        const monitor = icon ? Main.layoutManager.findIndexForActor(icon) : global.display.get_current_monitor();
        const area = Main.layoutManager.getWorkAreaForMonitor(monitor);
        const right = area.x + area.width - width - margin, bottom = area.y + area.height - height - margin;
        let x = right, y = area.y + margin;
        if (icon) {
            const [left, top] = icon.get_transformed_position(), [wide] = icon.get_transformed_size();
            x = between(Math.round(left + (wide - width) / 2), area.x + margin, right);
            y = top < area.y + area.height / 2 ? y : bottom;
        }
        window.move_frame(true, x, y);
        window.activate(global.display.get_current_time_roundtrip());
        this._closeFromTheWallpaper(window);
    }

    _closeFromTheWallpaper(window) {  // the keyboard stays where it is when the wallpaper is clicked
        this.forget('hung');
        const press = global.stage.connect('captured-event', (stage, event) => {
            const isPress = [Clutter.EventType.BUTTON_PRESS, Clutter.EventType.TOUCH_BEGIN].includes(event.type());
            const actor = isPress ? stage.get_event_actor?.(event) ?? event.get_source() : null;
            if (actor && Main.layoutManager._backgroundGroup.contains(actor))
                window.delete(global.get_current_time());
            return Clutter.EVENT_PROPAGATE;
        });
        const gone = window.connect('unmanaged', () => this.forget('hung'));
        this._undo.set('hung', () => {
            global.stage.disconnect(press);
            window.disconnect(gone);
        });
    }
}

class ZorveWindows extends Extension {
    enable() {
        this._windows = new Windows();
        this._object = Gio.DBusExportedObject.wrapJSObject(XML, this._windows);
        this._object.export(Gio.DBus.session, PATH);
        this._name = Gio.DBus.session.own_name(NAME, Gio.BusNameOwnerFlags.NONE, null, null);
    }

    disable() {
        Gio.DBus.session.unown_name(this._name);
        this._object.unexport();
        this._windows.forget();
        this._object = this._windows = null;
    }
}
