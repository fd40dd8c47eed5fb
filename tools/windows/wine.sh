# Sourced by the scripts that run Windows programs: a Wine of their own, below build/, which ends with them.

# Variables that begin with QT_ do not pass through Wine: WINEQT_QPA_PLATFORM stands for QT_QPA_PLATFORM.
export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all LC_ALL=${LC_ALL:-C.UTF-8}
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"

# Makes a fresh Wine. Its server runs detached: a pipe of ours that it held open would be waited for.
begin_wine() {
    need $WINE_PACKAGES
    end_wine
    trap end_wine EXIT
    timeout 180 wineboot -i </dev/null >/dev/null 2>&1
    # The oldest Windows that Qt knows.
    timeout 60 wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f </dev/null >/dev/null 2>&1
    # Windows without a screen; nothing but pictures is missing.
    timeout 60 wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f </dev/null >/dev/null 2>&1
    timeout 60 wineserver -k || true
    timeout 60 wineserver -w || true
    timeout 60 wineserver -p </dev/null >/dev/null 2>&1
    timeout 60 wine cmd /c exit </dev/null >/dev/null 2>&1
}

# Ends all that runs in this Wine, and removes it.
end_wine() {
    [ -d "$WINEPREFIX" ] || return 0
    timeout 60 wineserver -k || true
    timeout 60 wineserver -w || true
    rm -rf "$WINEPREFIX"
}
