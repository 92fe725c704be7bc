tell application "Ghostty"
  activate
  set configuracion to new surface configuration
  set initial working directory of configuracion to "/Users/ana/it's"
  set initial input of configuracion to "claude -r 'abc'" & return
  new window with configuration configuracion
end tell
