# shellcheck shell=bash disable=SC2154 # the variables of run_case.sh
# The script runs with stand-ins for the system's tools; each writes what it was asked to "calls".

# stand_in NAME SCRIPT
stand_in() {
    mkdir -p bin
    printf '#!/bin/bash\necho "%s $*" >>calls\n%s\n' "$1" "$2" >"bin/$1"
    chmod +x "bin/$1"
}

# machine USER_ID INSTALLED_PACKAGE...: everything else is missing.
machine() {
    stand_in id "echo $1"
    stand_in dpkg-query "[[ ' ${*:2} ' == *\" \${!#} \"* ]] && printf installed"
    stand_in apt-get ''
    stand_in sudo 'exit 1'
    touch calls
}

# A sudo that asks for no password and runs the command.
password_free_sudo() {
    # shellcheck disable=SC2016
    stand_in sudo '[[ $1 == -n ]] && shift; "$@"'
}

install_packages() {
    run env PATH="$PWD/bin:$PATH" "$project/tools/install-packages.sh" "$@"
}

expect_call() {
    grep -qE "^$1" calls || fail "no call '$1' among: $(cat calls)"
}

expect_no_call() {
    ! grep -E "^$1" calls || fail "a call '$1' among: $(cat calls)"
}

test_installed_packages_need_neither_network_nor_privilege() {
    machine 1000 clang-format git
    install_packages format
    expect_status 0
    expect_silence
    expect_no_call apt-get
    expect_no_call sudo
}

test_root_installs_only_what_is_missing() {
    machine 0 git
    install_packages format
    expect_status 0
    expect_call 'apt-get .* update'
    expect_call 'apt-get .* install -y --no-install-recommends clang-format$'
    expect_no_call sudo
}

test_a_person_installs_through_sudo() {
    machine 1000
    password_free_sudo
    install_packages wayland
    expect_status 0
    expect_call 'sudo -n true'
    expect_call 'sudo -n env DEBIAN_FRONTEND=noninteractive apt-get .* install .* qt6-wayland$'
}

test_without_privilege_it_prints_the_command_and_ends_with_3() {
    machine 1000 git
    install_packages format
    expect_status 3
    expect_output 'sudo apt-get update && sudo apt-get install -y --no-install-recommends clang-format'
    expect_no_call apt-get
}

test_a_failed_installation_is_tried_once_more() {
    machine 0
    # shellcheck disable=SC2016
    stand_in apt-get '[[ "$*" != *install* ]] || [[ $(grep -c "apt-get .*install" calls) == 2 ]]'
    install_packages wayland
    expect_status 0
    [[ $(grep -c 'apt-get .*install' calls) == 2 ]]
}

test_an_installation_that_fails_twice_ends_with_1() {
    machine 0
    # shellcheck disable=SC2016
    stand_in apt-get '[[ "$*" != *install* ]]'
    install_packages wayland
    expect_status 1
    expect_output 'could not install: qt6-wayland'
}

test_old_package_lists_do_when_no_fresh_ones_come() {
    machine 0
    # shellcheck disable=SC2016
    stand_in apt-get '[[ "$*" != *update* ]]'
    install_packages wayland
    expect_status 0
    expect_output 'no fresh package lists'
}

test_a_removed_package_counts_as_missing() {
    machine 0
    stand_in dpkg-query 'printf config-files'
    install_packages wayland
    expect_status 0
    expect_call 'apt-get .* install .* qt6-wayland$'
}

test_the_default_is_what_building_and_testing_need() {
    machine 1000
    install_packages
    expect_status 3
    expect_output ' g++ cmake ninja-build '
    expect_output ' libgtest-dev libgmock-dev cups-daemon '
}

test_an_unknown_group_ends_with_2() {
    machine 0
    install_packages games
    expect_status 2
    expect_output "no group 'games'"
    expect_no_call apt-get
}
