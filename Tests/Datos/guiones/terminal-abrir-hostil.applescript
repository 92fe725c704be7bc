tell application "Terminal"
  activate
  do script "cd '/Users/ana/a\\b \"c\"
d $(x) ñ' && claude -r 'a'\\''b'"
end tell
