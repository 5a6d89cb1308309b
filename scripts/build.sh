# Building a preset. To be sourced; works in the project's folder.

# A build folder that was made elsewhere and moved here cannot be used.
is_configured() {
    [[ -e build/$1/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$1/CMakeCache.txt"
}

# Warnings, and an include that another source has brought along, stop who develops Quadrel, not who
# plays it.
strictly=()
if [[ -n ${QUADREL_STRICT:-} ]]; then
    strictly=(-DQUADREL_STRICT=ON -DCMAKE_UNITY_BUILD=OFF)
fi

build_preset() {
    echo "Building: $1"
    if ! is_configured "$1"; then
        cmake --preset "$1" --fresh "${strictly[@]}" >/dev/null
    fi
    cmake --build --preset "$1"
}
