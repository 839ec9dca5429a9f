# The part of docs/windows-smoke.md that a script can do. Installs and removes Tamber on this machine.
# Exit code: the number of failed checks.
param(
    [Parameter(Mandatory = $true)] [string] $Setup,
    [string] $Version # what the file must be; not given, whatever it says of itself
)

$ErrorActionPreference = 'Stop'
$failed = 0
$folder = Join-Path $env:ProgramFiles 'Tamber'
$startup = Join-Path ([Environment]::GetFolderPath('Startup')) 'Tamber.lnk'
$desktop = Join-Path ([Environment]::GetFolderPath('Desktop')) 'Tamber.lnk'

function Check([string] $what, [bool] $holds) {
    if ($holds) { Write-Host "ok      $what" } else { Write-Host "FAILED  $what"; $script:failed++ }
}

function Invoke-Setup([string[]] $options, [string] $program = $Setup) {
    (Start-Process -FilePath $program -ArgumentList $options -Wait -PassThru).ExitCode
}

function Get-ProductCount {
    $installer = New-Object -ComObject WindowsInstaller.Installer
    @($installer.GetType().InvokeMember('RelatedProducts', 'GetProperty', $null, $installer,
            @('{6B1E24D0-5A7C-4F19-9E3B-2C8D41A07F55}'))).Count
}

$user = [Security.Principal.WindowsPrincipal] [Security.Principal.WindowsIdentity]::GetCurrent()
if (-not $user.IsInRole([Security.Principal.WindowsBuiltInRole]::Administrator)) { throw 'Run this elevated.' }
if ((Get-ProductCount) -ne 0) { throw 'Tamber is installed here. Use a machine without it.' }

Write-Host '-- the file'
$info = (Get-Item $Setup).VersionInfo
if (-not $Version) { $Version = $info.ProductVersion }
Write-Host "version $Version"
Check 'version block' ($info.ProductName -eq 'Tamber' -and $info.ProductVersion -eq $Version -and
    $info.FileVersion -eq $Version -and $Version -match '^\d+\.\d+\.\d+$')
Check 'signature is valid' ((Get-AuthenticodeSignature $Setup).Status -eq 'Valid')

Write-Host '-- first install'
Check 'ends with 0' ((Invoke-Setup '--install', '--quiet') -eq 0)
Check 'one product is installed' ((Get-ProductCount) -eq 1)
Check 'application and setup are there' ((Test-Path "$folder\Tamber.exe") -and (Test-Path "$folder\TamberSetup.exe"))
Check 'installed version' ((Get-Item "$folder\Tamber.exe").VersionInfo.ProductVersion -like "$Version*")
Check 'Startup shortcut, no desktop shortcut' ((Test-Path $startup) -and -not (Test-Path $desktop))
$link = (New-Object -ComObject WScript.Shell).CreateShortcut($startup)
Check 'shortcut' ($link.TargetPath -eq "$folder\Tamber.exe" -and $link.Arguments -eq '--start-hidden')
Start-Sleep 2
Check 'application runs in the background' ($null -ne (Get-Process Tamber -ErrorAction SilentlyContinue))

Write-Host '-- reinstall'
Remove-Item $startup
Check 'with a desktop shortcut ends with 0' ((Invoke-Setup '--install', '--quiet', '--desktop') -eq 0)
Check 'the deleted Startup shortcut stays deleted' (-not (Test-Path $startup))
Check 'the desktop shortcut is there' (Test-Path $desktop)
Check 'from the install folder ends with 0' ((Invoke-Setup '--install', '--quiet' "$folder\TamberSetup.exe") -eq 0)

Write-Host '-- second instance'
$mutex = New-Object Threading.Mutex($true, 'Local\Corvalin.Tamber.Setup')
Check 'ends with 0' ((Invoke-Setup '--uninstall', '--quiet') -eq 0)
Check 'has done nothing' ((Get-ProductCount) -eq 1)
$mutex.ReleaseMutex()
$mutex.Dispose()

Write-Host '-- uninstall'
Check 'ends with 0' ((Invoke-Setup '--uninstall', '--quiet') -eq 0)
Check 'no product is installed' ((Get-ProductCount) -eq 0)
Check 'application is gone' (-not (Test-Path "$folder\Tamber.exe"))
Check 'shortcuts are gone' (-not ((Test-Path $startup) -or (Test-Path $desktop)))

Write-Host '-- files planted beside the setup, a folder with Czech letters'
$trap = Join-Path $env:TEMP ('tamber smoke ' + [Guid]::NewGuid())
$elsewhere = Join-Path $trap ('Tamber ' + [char]0x017E + 'lut' + [char]0x00FD)
New-Item -ItemType Directory $trap | Out-Null
Copy-Item $Setup "$trap\TamberSetup.exe"
foreach ($name in 'msi', 'version', 'dwmapi', 'd3d11', 'dwrite', 'msimg32', 'd3dcompiler_47') {
    Set-Content "$trap\$name.dll" 'no library: loading it fails, and the run with it'
}
Copy-Item "$env:SystemRoot\System32\where.exe" "$trap\msiexec.exe"
$options = '--install', '--quiet', '--no-startup', '--install-dir', "`"$elsewhere`""
Check 'install ends with 0' ((Invoke-Setup $options "$trap\TamberSetup.exe") -eq 0)
Check 'the application is there' (Test-Path "$elsewhere\Tamber.exe")
Check 'no Startup shortcut' (-not (Test-Path $startup))
Check 'uninstall ends with 0' ((Invoke-Setup '--uninstall', '--quiet' "$trap\TamberSetup.exe") -eq 0)

Get-Process Tamber -ErrorAction SilentlyContinue | Stop-Process -Force
Remove-Item -Recurse -Force $trap, $folder -ErrorAction SilentlyContinue
Write-Host "$failed failed"
exit $failed
