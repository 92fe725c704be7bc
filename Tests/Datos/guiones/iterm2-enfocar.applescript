tell application "iTerm2"
  activate
  repeat with laVentana in windows
    repeat with laPestana in tabs of laVentana
      repeat with laSesion in sessions of laPestana
        set elTty to tty of laSesion
        if elTty is "/dev/ttys004" or elTty is "ttys004" then
          select laVentana
          select laPestana
          select laSesion
          return
        end if
      end repeat
    end repeat
  end repeat
end tell
error "Zorve found no iTerm2 session on ttys004. The Claude session is still alive, but its window no longer exists."
