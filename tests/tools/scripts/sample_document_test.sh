# shellcheck shell=bash disable=SC2154 # the variables of run_case.sh

sample=driver/demo/sample.pdf

test_it_is_what_its_script_writes() {
    "$project/driver/demo/make-sample.sh" >sample.pdf
    cmp sample.pdf "$project/$sample"
}

test_its_cross_references_point_at_its_objects() {
    local number=0 offset
    while read -r offset _ kind; do
        [[ $kind == n ]] || continue
        number=$((number + 1))
        run tail -c "+$((10#$offset + 1))" "$project/$sample"
        [[ $output == "$number 0 obj"* ]] || fail "object $number is not at byte $offset"
    done < <(sed -n '/^xref/,/^trailer/p' "$project/$sample" | grep -E '^[0-9]{10} ')
    ((number == 17)) || fail "$number objects"
}
