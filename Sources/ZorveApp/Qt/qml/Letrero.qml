import QtQuick

// Every text: plain, whatever is written in it.
Text {
    textFormat: Text.PlainText
}
