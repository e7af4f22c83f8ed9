# postgres_dizini: where the programs of the database server lie, for the private server of tests and benchmarks. Debian
# keeps them out of the path.
file(GLOB postgres_dizinleri /usr/lib/postgresql/*/bin)
list(SORT postgres_dizinleri COMPARE NATURAL ORDER DESCENDING)
find_program(BELVANI_INITDB initdb HINTS ${postgres_dizinleri} REQUIRED)
cmake_path(GET BELVANI_INITDB PARENT_PATH postgres_dizini)
