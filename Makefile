# Korvath 3: everything a newcomer needs on a fresh Debian 12 machine.
#   make run    install what is missing, build, analyse and check the bundled examples and
#               write their entire reports to build/reports/
#   make test   install what is missing, build, and run every test (also under the sanitizers)
#   make bench  time the analysis, the project files and the design search
#   make golden write the golden files of the command line's output anew, after a deliberate
#               change (git diff then shows what changed)
#   make screenshots  pictures of the desktop program's windows in build/screenshots/
#   make fuzz   the libFuzzer targets in build-fuzz/ (make test runs each briefly)
#   make fuzz-long    each target for FUZZ_RUNS executions (10 million) under LeakSanitizer
#   make install      install the programs, desktop entry, file type, icon and examples
#                     (PREFIX=/usr/local, DESTDIR for a staging root)
#   make package      the Debian package build/korvath3_3.0_amd64.deb

PACKAGES := cmake ninja-build g++ make libgtest-dev libgmock-dev libbenchmark-dev \
            nlohmann-json3-dev libcli11-dev qt6-base-dev qt6-svg-dev qt6-charts-dev fonts-liberation xvfb \
            poppler-utils clang libclang-rt-14-dev dpkg-dev file desktop-file-utils appstream
EXAMPLES := $(wildcard examples/*.kvt)
CLI := build/bin/korvath3-cli

SUDO := $(shell [ "$$(id -u)" = 0 ] && echo "" || (command -v sudo >/dev/null && echo "sudo -n"))

.PHONY: all deps configure build run test test-asan fuzz fuzz-smoke fuzz-long bench screenshots \
        format clean install package golden
PREFIX ?= /usr/local
FUZZERS := read_design_file_fuzzer:design_file page_file_fuzzer:page_file \
           design_run_fuzzer:design_run

all: build

# Installs only the Debian packages that are missing.
deps:
	@missing=$$(for p in $(PACKAGES); do \
	    dpkg-query -W -f='$${Status}\n' $$p 2>/dev/null | grep -q 'install ok installed' || echo $$p; \
	  done); \
	if [ -n "$$missing" ]; then \
	  echo "Installing missing packages:" $$missing; \
	  if [ "$$(id -u)" = 0 ] || sudo -n true 2>/dev/null; then \
	    $(SUDO) apt-get update -qq && \
	    DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq --no-install-recommends $$missing; \
	  else \
	    echo "Please run: sudo apt-get update && sudo apt-get install -y $$missing"; exit 1; \
	  fi; \
	fi

configure: deps
	cmake --preset dev

build: configure
	cmake --build --preset dev

# With a display the desktop program opens on an example; without one the examples are analysed
# and checked on the command line and their reports written as PDF.
run: build
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  build/bin/korvath3 examples/expansive_ribbed.kvt; exit $$?; \
	fi
	@mkdir -p build/reports
	@for project in $(EXAMPLES); do \
	  $(CLI) analyze "$$project" || exit $$?; echo; \
	  $(CLI) check "$$project" || exit $$?; echo; \
	done
	@for project in $(EXAMPLES); do \
	  $(CLI) report "$$project" --range entire -o "build/reports/$$(basename "$$project" .kvt).pdf" \
	    || exit $$?; \
	done

test: build test-asan fuzz-smoke
	ctest --preset dev

# The core and its tests once more under AddressSanitizer and UndefinedBehaviorSanitizer.
test-asan: deps
	cmake --preset asan
	cmake --build --preset asan
	ctest --preset asan

# The libFuzzer targets, built with clang and instrumented libraries into build-fuzz/.
fuzz: deps
	cmake -S . -B build-fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ \
	  -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined" \
	  -DK3_BUILD_APP=OFF -DK3_BUILD_CLI=OFF -DK3_BUILD_BENCH=OFF -DBUILD_TESTING=OFF
	cmake --build build-fuzz --target $(foreach f,$(FUZZERS),$(firstword $(subst :, ,$(f))))

# Each target for a short fixed number of runs from the seed corpus, which it leaves untouched.
fuzz-smoke: fuzz
	@for entry in $(FUZZERS); do \
	  target=$${entry%%:*}; corpus=$${entry##*:}; \
	  rm -rf "build-fuzz/corpus/$$corpus"; mkdir -p "build-fuzz/corpus/$$corpus"; \
	  cp fuzz/corpus/$$corpus/* "build-fuzz/corpus/$$corpus/"; \
	  build-fuzz/bin/$$target -runs=3000 -max_len=8192 -rss_limit_mb=1024 \
	    "build-fuzz/corpus/$$corpus" 2> "build-fuzz/$$target.log" \
	    || { tail -40 "build-fuzz/$$target.log"; exit 1; }; \
	  echo "$$target: $$(grep -o 'Done [0-9]* runs' "build-fuzz/$$target.log")"; \
	done

# The long runs before a release: every target in a Release build with LeakSanitizer alone, which
# runs several times faster than the smoke's build, from a copy of the seed corpus. Prints the
# executions, the time and the peak memory of each; stops at the first crash or leak.
FUZZ_RUNS ?= 10000000
fuzz-long: deps
	cmake -S . -B build-fuzz-long -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Release \
	  -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link -gline-tables-only" -DK3_FUZZ_SANITIZERS=leak \
	  -DK3_BUILD_APP=OFF -DK3_BUILD_CLI=OFF -DK3_BUILD_BENCH=OFF -DBUILD_TESTING=OFF
	cmake --build build-fuzz-long --target $(foreach f,$(FUZZERS),$(firstword $(subst :, ,$(f))))
	@for entry in $(FUZZERS); do \
	  target=$${entry%%:*}; corpus=$${entry##*:}; log="build-fuzz-long/$$target.log"; \
	  rm -rf "build-fuzz-long/corpus/$$corpus"; mkdir -p "build-fuzz-long/corpus/$$corpus"; \
	  cp fuzz/corpus/$$corpus/* "build-fuzz-long/corpus/$$corpus/"; \
	  build-fuzz-long/bin/$$target -runs=$(FUZZ_RUNS) -print_final_stats=1 -max_len=8192 \
	    -rss_limit_mb=1024 "build-fuzz-long/corpus/$$corpus" 2> "$$log" \
	    || { tail -40 "$$log"; exit 1; }; \
	  echo "$$target: $$(grep -o 'Done [0-9]* runs in [0-9]* second(s)' "$$log")," \
	    "peak memory $$(grep -o 'peak_rss_mb: *[0-9]*' "$$log" | grep -o '[0-9]*$$') MB"; \
	done

golden: build
	K3_WRITE_GOLDEN=1 build/bin/golden_tests --gtest_filter='Examples/GoldenOutput.*'
	build/bin/golden_tests

bench: build
	build/bin/korvath3-bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true

# Pictures of the desktop program's windows for each example, drawn without a display.
screenshots: build
	@for project in $(EXAMPLES); do \
	  name=$$(basename "$$project" .kvt); \
	  QT_QPA_PLATFORM=offscreen build/bin/korvath3-screenshots "build/screenshots/$$name" "$$project" \
	    2>/dev/null || exit $$?; \
	done

install: build
	cmake --install build --prefix "$(PREFIX)"

package: build
	cd build && cpack -B "$(CURDIR)/build"

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf build build-asan build-fuzz build-fuzz-long
