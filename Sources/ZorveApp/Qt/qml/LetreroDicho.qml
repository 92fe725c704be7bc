import QtQuick

// A text that a screen reader finds by itself.
Letrero {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
