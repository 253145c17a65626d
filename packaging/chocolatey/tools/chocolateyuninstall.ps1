$ErrorActionPreference = 'Stop'

[array]$keys = Get-UninstallRegistryKey -SoftwareName 'Folivant'
foreach ($key in $keys) {
  $file = ($key.UninstallString -replace '"', '')
  Uninstall-ChocolateyPackage -PackageName 'folivant' -FileType 'exe' -SilentArgs '/S' -File $file
}
