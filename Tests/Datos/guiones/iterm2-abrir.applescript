tell application "iTerm2"
  activate
  set ventanaNueva to (create window with default profile)
  tell current session of ventanaNueva
    write text "cd '/Users/ana/it'\\''s' && claude -r 'abc'"
  end tell
end tell
