# prog outdir theme
mkdir -p $2; export XDG_CONFIG_HOME=/tmp/prof/cfg-$3 XDG_RUNTIME_DIR=/tmp/prof/rt XDG_DATA_HOME=/tmp/prof/data DISPLAY=:81 LC_ALL=C.UTF-8
rm -rf $XDG_CONFIG_HOME; mkdir -p $XDG_CONFIG_HOME /tmp/prof/rt /tmp/prof/data; chmod 700 /tmp/prof/rt
if [ $3 = dark ]; then export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
sed -n "/<<'COLOURS'/,/^COLOURS/p" /work/ha/scripts/screenshots | sed '1d;$d' > $XDG_CONFIG_HOME/kdeglobals; fi
QT_QPA_PLATFORM=xcb /tmp/prof/$1 shots $2
