# Deployment settings. The defaults are harmless: they point at names that are
# reserved for examples and never resolve.
set(HOOPLINE_ORGANISATION "hoopline.example" CACHE STRING
    "Organisation name; names the settings file, so it must stay stable")
set(HOOPLINE_BASE_URL "https://www.hoopline.example" CACHE STRING
    "Base URL of the maker's web server")
set(HOOPLINE_STAGING_URL "https://staging.hoopline.example" CACHE STRING
    "Base URL of the maker's staging server")
set(HOOPLINE_METRICS_DOMAIN "metrics.hoopline.example" CACHE STRING
    "Domain of the metrics endpoint; the product's own label is put before it")
set(HOOPLINE_PRIVACY_URL "${HOOPLINE_BASE_URL}/privacy" CACHE STRING
    "The privacy page")
set(HOOPLINE_BETA_TAG "" CACHE STRING
    "Marks the build as a beta, which always looks for beta updates; empty for a release")
set(HOOPLINE_SUPPORT_MAIL "support@hoopline.example" CACHE STRING
    "Address shown when an unexpected error is reported")

# SOURCE_DATE_EPOCH is honoured by string(TIMESTAMP), for reproducible builds.
string(TIMESTAMP HOOPLINE_BUILD_YEAR "%Y" UTC)
string(TIMESTAMP HOOPLINE_BUILD_MONTH "%m" UTC)
string(TIMESTAMP HOOPLINE_BUILD_DAY "%d" UTC)

configure_file("${PROJECT_SOURCE_DIR}/src/base/BuildConfig.h.in"
    "${PROJECT_BINARY_DIR}/generated/base/BuildConfig.h" @ONLY)
