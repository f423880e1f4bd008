# The two commands of the project; everything else is a CMake preset (see README.md).

.PHONY: run test

run:
	@packaging/install-packages run
	@cmake --preset release -D VELKARO_QUICK_BUILD=ON \
	    -D CMAKE_UNITY_BUILD=ON -D CMAKE_UNITY_BUILD_BATCH_SIZE=16
	@cmake --build --preset release
	@packaging/run-sample build/release

test:
	@packaging/install-packages run test
	@cmake --preset test
	@cmake --build --preset test
	@ctest --preset test
