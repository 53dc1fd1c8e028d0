# cmake -DFUZZERS=... -DHARNESS=... -DMAX_LENGTH=... -DCORPUS=... -DSEEDS=... -DFOLDER=... -P RunFuzzer.cmake
#
# Fuzzes for FUZZ_SECONDS of the environment, 10 without it. FOLDER/corpus grows from run to run; CORPUS and SEEDS are only
# read. What is found lies in FOLDER as finding-crash-..., finding-leak-..., finding-timeout-... .

set(seconds 10)
if(DEFINED ENV{FUZZ_SECONDS})
    set(seconds "$ENV{FUZZ_SECONDS}")
endif()

file(MAKE_DIRECTORY "${FOLDER}/corpus")
set(temporary "${FOLDER}/temporary")
if(IS_DIRECTORY /dev/shm) # the database is flushed to the disk, and there is none
    set(temporary "/dev/shm/importdame-fuzz-${HARNESS}")
endif()
file(REMOVE_RECURSE "${temporary}")
file(MAKE_DIRECTORY "${temporary}")

set(options)
if(EXISTS "${CORPUS}/../${HARNESS}.dict")
    list(APPEND options "-dict=${CORPUS}/../${HARNESS}.dict")
endif()
# Small fake stacks: every exception looks through them, which took half of the time with large ones.
execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env "TMPDIR=${temporary}" UBSAN_OPTIONS=print_stacktrace=1
        ASAN_OPTIONS=min_uar_stack_size_log=12:max_uar_stack_size_log=13
        nice "${FUZZERS}" --harness=${HARNESS} -max_total_time=${seconds} -max_len=${MAX_LENGTH} -timeout=20
        -rss_limit_mb=1500 -print_final_stats=1 "-artifact_prefix=${FOLDER}/finding-" ${options}
        "${FOLDER}/corpus" "${CORPUS}" ${SEEDS}
    RESULT_VARIABLE result)
file(REMOVE_RECURSE "${temporary}")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The fuzzer found something (${result}); see ${FOLDER}")
endif()
