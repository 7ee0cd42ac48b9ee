# The commands of the project. `make run` and `make test` work on a bare Debian 12 machine.
BUILD ?= build
TYPE ?= Release
JOBS ?= $(shell nproc)
export CCACHE_SLOPPINESS = pch_defines,time_macros,include_file_mtime,include_file_ctime
CMAKE_FLAGS = -G Ninja -DCMAKE_BUILD_TYPE=$(TYPE) -DCMAKE_CXX_COMPILER=g++ \
              -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
# ON compiles the files of a folder as one: sooner when everything is built, later after a change.
TOGETHER ?= OFF

.PHONY: run build test test-sanitized bench bench-peers check format packages clean where hooks

build: packages
	@cmake -S . -B $(BUILD) $(CMAKE_FLAGS) -DZF_TOGETHER=$(TOGETHER) \
	  > $(BUILD).configure.log 2>&1 || \
	  { cat $(BUILD).configure.log; exit 1; }
	@cmake --build $(BUILD) -j $(JOBS)

packages:
	@tools/install_packages.sh

run: build
	@tools/run_demo.sh $(BUILD)

test: build
	@ctest --test-dir $(BUILD) -j $(JOBS) --output-on-failure

test-sanitized: packages
	@cmake -S . -B build-asan $(CMAKE_FLAGS) -DZF_SANITIZE=ON -DZF_TOGETHER=ON \
	  > build-asan.configure.log 2>&1 || { cat build-asan.configure.log; exit 1; }
	@cmake --build build-asan -j $(JOBS)
	@ctest --test-dir build-asan -j $(JOBS) --output-on-failure

bench: build
	@$(BUILD)/zf_bench $(BUILD) $(MEASURE)

bench-peers: build
	@$(BUILD)/zf_bench_peers $(BUILD)

format:
	@git ls-files '*.cpp' '*.h' | xargs clang-format -i

where:
	@tools/where.sh "$(Q)"

clean:
	@rm -rf build build-asan
