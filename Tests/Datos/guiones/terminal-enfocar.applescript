tell application "Terminal"
  activate
  repeat with laVentana in windows
    repeat with laPestana in tabs of laVentana
      set elTty to tty of laPestana
      if elTty is "/dev/ttys004" or elTty is "ttys004" then
        set selected of laPestana to true
        set index of laVentana to 1
        return
      end if
    end repeat
  end repeat
end tell
error "Zorve found no Terminal session on ttys004. The Claude session is still alive, but its window no longer exists."
