# Building a preset. To be sourced; works in the project's folder.

# A build folder that was made elsewhere and moved here cannot be used.
is_configured() {
    [[ -e build/$1/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$1/CMakeCache.txt"
}

build_preset() {
    echo "Building: $1"
    if ! is_configured "$1"; then
        # Warnings stop who develops Quadrel, not who plays it with a newer compiler.
        cmake --preset "$1" --fresh -DQUADREL_STRICT="${QUADREL_STRICT:-OFF}" >/dev/null
    fi
    cmake --build --preset "$1"
}
