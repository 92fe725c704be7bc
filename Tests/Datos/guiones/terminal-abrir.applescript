tell application "Terminal"
  activate
  do script "cd '/Users/ana/it'\\''s' && claude -r 'abc'"
end tell
