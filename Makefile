# The front door. Everything is built below build/, one directory for each preset of CMakePresets.json.

PRESET ?= dev
JOBS ?= $(shell nproc)
CLI = build/$(PRESET)/src/cli/belvani-cli
MASAUSTU = build/$(PRESET)/src/app/belvani
RESIMLER = build/$(PRESET)/src/app/belvani-resimler

PREFIX ?= /usr/local

.PHONY: sunucu-dene screenshots run test altin maymun dayanim bench lint fuzz deps asan install clean

# The main job on the sample company. With a display: the desktop opens on it. Without one: it is made in a scratch data
# path, all its months are prepared, and the last ledger is printed.
run: deps
	@cmake --preset $(PRESET) >/dev/null
	@cmake --build --preset $(PRESET) --target belvani-cli belvani -j $(JOBS)
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then tools/masaustu.sh $(CLI) $(MASAUSTU) build/ornek; \
	else tools/ornek.sh $(CLI); fi

# An office's database server for trial, on this computer alone; tells how to use and remove it.
sunucu-dene: deps
	@cmake --preset $(PRESET) >/dev/null
	@cmake --build --preset $(PRESET) --target belvani-cli belvani -j $(JOBS)
	@tools/sunucu-dene.sh $(CLI)

# Pictures of every screen, filled from the sample company, for the documentation.
screenshots: deps
	@cmake --preset $(PRESET) >/dev/null
	@cmake --build --preset $(PRESET) --target belvani-cli belvani-resimler -j $(JOBS)
	@tools/resimler.sh $(CLI) $(RESIMLER) docs/img

test: deps
	cmake --preset $(PRESET)
	cmake --build --preset $(PRESET) -j $(JOBS)
	ctest --preset $(PRESET) -j $$(($(JOBS) + 1))

# The approved records of all papers, written anew from what the program does now. Read their diff before it is
# committed: it is what changes on paper.
altin: deps
	cmake --preset $(PRESET)
	cmake --build --preset $(PRESET) --target test_altin test_screens_core -j $(JOBS)
	BELVANI_ALTIN=yaz build/$(PRESET)/tests/test_altin --gtest_brief=1
	BELVANI_ALTIN=yaz QT_QPA_PLATFORM=offscreen build/$(PRESET)/tests/test_screens_core --gtest_filter='*IsAsApproved' \
	  --gtest_brief=1
	git status --short tests/altin/kayit

# Random keys on every screen under the sanitizers, for SANIYE seconds from the seed TOHUM on. A failure names the seed
# and the scene with which it comes again: make maymun SANIYE=1 TOHUM=… SAHNE=…
TOHUM ?= 1
SANIYE ?= 300
maymun: deps
	cmake --preset asan-ubsan
	cmake --build --preset asan-ubsan --target test_maymun -j $(JOBS)
	BELVANI_MAYMUN_TOHUM=$(TOHUM) BELVANI_MAYMUN_SANIYE=$(SANIYE) BELVANI_MAYMUN_SAHNE=$(SAHNE) \
	  build/asan-ubsan/tests/test_maymun

# Every command that writes, interrupted at each of its system calls, or at ADET of them; `make test` plays a few.
ADET ?= tam
dayanim: deps
	cmake --preset $(PRESET)
	cmake --build --preset $(PRESET) --target test_dayanim -j $(JOBS)
	BELVANI_DAYANIM=$(ADET) build/$(PRESET)/tests/test_dayanim --gtest_brief=1

# The same tests under the address and undefined-behaviour sanitizers.
asan:
	$(MAKE) test PRESET=asan-ubsan

# Programs, data, entry of the desktop's menu and icon below PREFIX; DESTDIR goes in front of it, for packages. The
# programs look for their data where PREFIX says.
install: deps
	cmake -S . -B build/kurulum -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=$(PREFIX) -DBELVANI_TESTLER=OFF
	cmake --build build/kurulum -j $(JOBS)
	cmake --install build/kurulum

bench: deps
	cmake --preset release
	cmake --build --preset release -j $(JOBS)
	bench/olc.sh build/release

# Each reader of outside bytes, one minute under the sanitizers (FUZZ_SANIYE changes that).
fuzz:
	tools/deps.sh fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS)
	fuzz/calistir.sh build/fuzz

lint:
	tools/deps.sh lint
	cmake --preset lint
	tools/lint.sh build/lint

deps:
	@tools/deps.sh

clean:
	rm -rf build
