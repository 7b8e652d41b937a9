cd /work/ha/build/release
nice ninja trelonit_whole_program | tail -3
C=$(ninja -t commands trelonit_whole_program | grep 'trelonit_whole_program.dir/Unity/unity_0_cxx.cxx.o -c' | sed 's/ -o .*//; s/ -MD.*//; s/-Werror//g')
L=$(ninja -t commands trelonit_whole_program | tail -1 | sed 's#bench/CMakeFiles/trelonit_whole_program.dir/Unity/unity_0_cxx.cxx.o#/tmp/prof/Prof.o#; s#-o bin/trelonit_whole_program#-o /tmp/prof/'${1:-prof}'#')
[ "$2" = nocompile ] || eval "$C -o /tmp/prof/Prof.o -c /tmp/prof/Prof.cpp" || exit 1
eval "$L"
