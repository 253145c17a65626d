$ErrorActionPreference = 'Stop'

Install-ChocolateyPackage -PackageName 'folivant' -FileType 'exe' -SilentArgs '/S /AllUsers' `
  -Url64bit '@SETUP_URL@' -Checksum64 '@SETUP_SHA256@' -ChecksumType64 'sha256'
