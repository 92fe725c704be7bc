tell application "Ghostty"
  activate
  set configuracion to new surface configuration
  set initial working directory of configuracion to "/Users/ana/a\\b \"c\"
d $(x) ñ"
  set initial input of configuracion to "claude -r 'a'\\''b'" & return
  new window with configuration configuracion
end tell
